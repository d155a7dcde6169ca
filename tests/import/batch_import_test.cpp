#include "import/batch_import.h"
#include "import_fixture.h"

#include <filesystem>

namespace wayscribe::test {

namespace {
// A report that paints sector 50,50 and leaves a hide note there.
std::string paintingReport(const std::string &terrain, const std::string &hide,
                           const std::string &game = "07")
{
    ReportShape shape;
    shape.game = game;
    shape.prose = {"We're in the village.", "Hides (@ 1 gp): " + hide};
    shape.startX = 50;
    shape.startY = 50;
    shape.map = {{"Party and Village", terrain}};
    shape.heading = "VILLAGE OF OTTERBY (99)";
    shape.afterHeading = {"", ""};
    return reportText(shape);
}
} // namespace

class BatchImport : public ImportTest {
protected:
    std::string folder() const { return dir.path().string() + "/"; }
    BatchOutcome importFolder() { return importHtmlFolder(*world, state, platform, folder(), writeOptions); }
};

TEST_F(BatchImport, HtmFilesFirstThenHtmlEachInNameOrder)
{
    writeFile(dir.file("a.html"), paintingReport("Forest", "A."));
    writeFile(dir.file("c.htm"), paintingReport("Hills", "C."));
    writeFile(dir.file("b.htm"), paintingReport("Water", "B."));
    writeFile(dir.file("D.HTM"), paintingReport("Desert", "D."));
    writeFile(dir.file("notes.txt"), paintingReport("Swamp", "T."));
    writeFile(dir.file("x.htmx"), paintingReport("Swamp", "X."));
    std::filesystem::create_directory(dir.path() / "old.htm");

    std::vector<std::string> files;
    std::string error;
    ASSERT_TRUE(reportFilesInFolder(folder(), files, error));
    EXPECT_EQ(files, (std::vector<std::string>{folder() + "b.htm", folder() + "c.htm", folder() + "a.html"}));

    state.view.viewLeft = 12;
    const BatchOutcome outcome = importFolder();
    EXPECT_EQ(outcome.imported, 3);
    const std::string wait = "Please wait, batch importing HTML turns...";
    EXPECT_EQ(platform.statuses,
              (std::vector<std::string>{wait, wait + " file 1 of 3, b.htm", wait + " file 2 of 3, c.htm",
                                        wait + " file 3 of 3, a.html", ""}));
    // Later reports overwrite the terrain; only the first note finds the sector empty.
    EXPECT_EQ(at(51, 50).terrain, 6);
    EXPECT_EQ(at(50, 50).note, "B.");
    EXPECT_EQ(state.view.viewLeft, 12);
    EXPECT_EQ(platform.redraws, 1);
    EXPECT_EQ(state.document.fileBusy, 0);
    EXPECT_EQ(state.options.lastImp, folder());
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(BatchImport, TheFirstGameNumberHoldsAndOtherGamesAreSkippedSilently)
{
    writeFile(dir.file("1.htm"), paintingReport("Forest", "One.", "05"));
    writeFile(dir.file("2.htm"), paintingReport("Water", "Two.", "07"));
    writeFile(dir.file("3.htm"), paintingReport("Hills", "Three.", "05"));
    importFolder();
    EXPECT_EQ(state.document.gameNumber, 5);
    EXPECT_EQ(at(51, 50).terrain, 12);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(BatchImport, ABrokenReportIsReportedAndTheOthersAreImported)
{
    writeFile(dir.file("a.htm"), readFile(reportPath("cut_map.htm")));
    writeFile(dir.file("b.htm"), paintingReport("Water", "B."));
    const BatchOutcome outcome = importFolder();
    EXPECT_EQ(outcome.stopped, 1);
    EXPECT_EQ(outcome.imported, 1);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].detail,
              dir.file("a.htm") + ", line 22: the report ends inside the map table");
    EXPECT_EQ(at(45, 67).terrain, 6);
    EXPECT_EQ(at(51, 50).terrain, 2);
}

TEST_F(BatchImport, SettlementQuestionsAreAskedPerFile)
{
    writeFile(dir.file("a.htm"), paintingReport("Water", "A."));
    std::string moved = paintingReport("Water", "B.");
    moved.replace(moved.find("MAP INFO 50 50"), 14, "MAP INFO 60 60");
    writeFile(dir.file("b.htm"), moved);
    platform.answers = {Answer::No};
    importFolder();
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].title, "Overwrite settlement?");
    EXPECT_EQ(world->settlement(99).x, 50);
}

TEST_F(BatchImport, EmptyFolderAndCancelledDialog)
{
    batchImportHtml(*world, state, platform, writeOptions);
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(platform.dialogs[0].title, "Select folder with HTML turns...");
    EXPECT_EQ(platform.dialogs[0].filter, "HTML File (*.html)|*.htm*");
    EXPECT_EQ(state.document.mapChanged, 0);
    EXPECT_EQ(platform.redraws, 0);

    platform.files = {dir.file("anything.htm")};
    batchImportHtml(*world, state, platform, writeOptions);
    EXPECT_EQ(state.document.mapChanged, 1);
    EXPECT_EQ(state.options.lastImp, folder());
    EXPECT_EQ(platform.redraws, 1);
    EXPECT_TRUE(platform.messages.empty());
}

} // namespace wayscribe::test
