// File, Import QuestOR: the question, the dialog, the busy flag and status
// line, and what the person is told when a file is broken.
#include "support/questor_writer.h"

#include "model/program_state.h"
#include "model/world.h"
#include "storage/questor_import.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <vector>

namespace wayscribe {
namespace {

using test::QuestorMapWriter;
using test::QuestorNamesWriter;

bool contains(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

class QuestorCommandTest : public ::testing::Test {
protected:
    QuestorCommandTest()
    {
        world->sector(150, 150).terrain = 11;
        world->sector(150, 150).note = "before";
        state.document.mapFileName = "/maps/old.om1";
    }

    void writeFiles(const std::string &mp1, const std::string &mp2)
    {
        test::writeFile(mapPath, mp1);
        test::writeFile(namesPath, mp2);
    }

    // Runs the command with the files chosen in the dialog.
    void run()
    {
        platform.files.push_back(mapPath);
        importQuestorCommand(*world, state, platform);
    }

    // Once more, with no question before and nothing said yet.
    void rerun()
    {
        platform = {};
        state.document.mapChanged = 0;
        run();
    }

    // After every import, finished or not.
    void expectJobEnded()
    {
        EXPECT_EQ(state.document.fileBusy, 0);
        EXPECT_FALSE(platform.waitCursor);
        ASSERT_FALSE(platform.statuses.empty());
        EXPECT_EQ(platform.statuses.front(), kQuestorStatus);
        EXPECT_EQ(platform.statuses.back(), "");
        EXPECT_EQ(platform.redraws, 1);
        EXPECT_EQ(state.document.mapFileName, "");
    }

    // The one message of a failed import: the detail names file and place.
    void expectFailure(const std::string &file, const std::string &place)
    {
        expectJobEnded();
        ASSERT_EQ(platform.messages.size(), 1u);
        const std::string where = place.empty() ? file + ": " : file + ", " + place + ": ";
        EXPECT_TRUE(contains(platform.messages[0].detail, where)) << platform.messages[0].detail;
    }

    static QuestorMapWriter oneSettlement()
    {
        QuestorMapWriter mp1;
        mp1.finishTerrain(1).nameIndex(1).at(5, 6).settlement(3).shop(20).shopNameIndex(1).item(150, 10);
        return mp1;
    }

    static QuestorNamesWriter namesOfOneSettlement()
    {
        QuestorNamesWriter mp2;
        mp2.notes = {{5, 6, "gate"}};
        mp2.settlementNames = {"Ford"};
        mp2.shopNames = {"Smithy"};
        mp2.itemNames = {{150, "Axe"}};
        return mp2;
    }

    test::TempDir dir;
    std::string mapPath = dir.file("lands.mp1");
    std::string namesPath = dir.file("lands.mp2");
    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    test::ScriptedPlatform platform;
};

TEST_F(QuestorCommandTest, ImportsAfterTheQuestionAndLeavesAMapWithoutAFileName)
{
    writeFiles(oneSettlement().bytes(), namesOfOneSettlement().text());
    state.document.mapChanged = 1;
    platform.answers.push_back(Answer::Yes);
    run();

    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, "Are you sure you wish to Import a QuestOR map without saving?");
    EXPECT_EQ(platform.messages[0].title, "Sure?");
    EXPECT_EQ(platform.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::Question);
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(platform.dialogs[0].title, kQuestorDialogTitle);
    EXPECT_EQ(platform.dialogs[0].filter, "QuestOR map files (*.mp1)|*.mp1");
    expectJobEnded();
    ASSERT_EQ(platform.statuses.front(), "Please wait, importing Questor map... (May take some time...)");
    EXPECT_EQ(state.document.mapChanged, 0);
    EXPECT_EQ(world->sector(150, 150).terrain, 2);
    EXPECT_EQ(world->sector(5, 6).settlementName, "Ford");
    EXPECT_EQ(world->sector(5, 6).note, "gate");
    EXPECT_EQ(world->shopName(3, 20), "Smithy");
    EXPECT_EQ(world->item(3, 20, 1, ItemField::Name), "Axe");
}

TEST_F(QuestorCommandTest, DoesNothingWhileBusyOrWhenTheQuestionIsDeclined)
{
    state.document.fileBusy = 1;
    run();
    EXPECT_TRUE(platform.dialogs.empty());
    EXPECT_TRUE(platform.messages.empty());

    state.document.fileBusy = 0;
    state.document.mapChanged = 1;
    platform.answers.push_back(Answer::No);
    importQuestorCommand(*world, state, platform);
    EXPECT_EQ(platform.messages.size(), 1u);
    EXPECT_TRUE(platform.dialogs.empty());
    EXPECT_EQ(state.document.mapChanged, 1);
    EXPECT_EQ(state.document.mapFileName, "/maps/old.om1");
}

TEST_F(QuestorCommandTest, CancellingTheDialogStillForgetsTheMapFileName)
{
    platform.files.push_back("");
    importQuestorCommand(*world, state, platform);
    EXPECT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(state.document.mapFileName, "");
    EXPECT_TRUE(platform.statuses.empty());
    EXPECT_EQ(platform.redraws, 0);
    EXPECT_EQ(world->sector(150, 150).terrain, 11);
}

TEST_F(QuestorCommandTest, AMapFileThatCannotBeReadLeavesTheMapAsItWas)
{
    const std::string noFile = mapPath;
    run();
    expectFailure(noFile, "");
    EXPECT_TRUE(contains(platform.messages[0].detail, "cannot be opened"));
    EXPECT_EQ(platform.messages[0].text, "The QuestOR map could not be imported. The map is as it was.");
    EXPECT_EQ(state.document.mapChanged, 0);
    EXPECT_EQ(world->sector(150, 150).terrain, 11);
}

TEST_F(QuestorCommandTest, BrokenMapFilesStopWhereTheyBreakAndKeepWhatWasRead)
{
    struct Case {
        const char *what;
        std::string bytes;
        std::string place;
        bool changed;
    };
    QuestorMapWriter shortTerrain;
    shortTerrain.run(300, 1); // column 1 and half of column 2
    QuestorMapWriter noSkipped;
    noSkipped.run(1000, 1);
    for (int k = 0; k < 39; ++k)
        noSkipped.run(1000, 0);
    QuestorMapWriter pastTheEnd;
    pastTheEnd.run(1000, 1);
    for (int k = 0; k < 39; ++k)
        pastTheEnd.run(k == 38 ? 1001 : 1000, 0);
    QuestorMapWriter tooManyItems = oneSettlement(); // already holds item 1
    for (int k = 2; k <= 21; ++k)
        tooManyItems.item(150, k);
    QuestorMapWriter itemFirst;
    itemFirst.finishTerrain(1).item(150, 1);
    QuestorMapWriter offTheMap;
    offTheMap.finishTerrain(1).at(201, 5).settlement(9);
    const std::string odd = oneSettlement().bytes() + '\x01';
    const std::size_t afterTerrain = 80 + 4;

    const Case cases[] = {
        {"empty", "", "byte offset 0", false},
        {"short terrain", shortTerrain.bytes(), "byte offset 2", true},
        {"terrain only", noSkipped.bytes(), "byte offset 80", true},
        {"run past the map", pastTheEnd.bytes(), "byte offset 78", true},
        {"21 items", tooManyItems.bytes(), "byte offset " + std::to_string(tooManyItems.bytes().size() - 4),
         true},
        {"item before a shop", itemFirst.bytes(), "byte offset " + std::to_string(afterTerrain), true},
        {"settlement off the map", offTheMap.bytes(), "byte offset " + std::to_string(afterTerrain + 4),
         true},
        {"odd length", odd, "byte offset " + std::to_string(odd.size() - 1), true},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        world->sector(150, 150).terrain = 11;
        world->sector(2, 101).terrain = 11;
        writeFiles(c.bytes, namesOfOneSettlement().text());
        rerun();
        expectFailure(mapPath, c.place);
        EXPECT_EQ(state.document.mapChanged, c.changed ? 1 : 0);
        EXPECT_EQ(world->sector(2, 100).terrain, c.changed ? 2 : 1);
        EXPECT_EQ(world->sector(2, 101).terrain, c.what == std::string("short terrain") ? 11
                                                 : c.changed                            ? 2
                                                                                        : 11);
    }
    // What the broken files held before their break is there.
    EXPECT_EQ(world->sector(5, 6).settlementName, "1");
    EXPECT_EQ(world->item(3, 20, 20, ItemField::Price), " 20");
}

TEST_F(QuestorCommandTest, BrokenNamesFilesStopWithTheirLine)
{
    QuestorMapWriter mp1 = oneSettlement();
    mp1.shop(21).shopNameIndex(2).item(310, 5, 1); // brings in the special item section
    QuestorNamesWriter names = namesOfOneSettlement();
    names.notes.push_back({7, 8, "two\r\nlines"});
    names.shopNames.push_back("Temple");
    names.specialSection = true;
    names.specialNames = {"Sceptre"};
    const std::string full = names.text();

    // Cut after each line of every section (the long item name table only at
    // its ends and middle): each cut is told, none crashes, and what came
    // before the cut stays.
    std::vector<std::size_t> lineEnds;
    for (std::size_t at = full.find("\r\n"); at != std::string::npos; at = full.find("\r\n", at + 2))
        lineEnds.push_back(at + 2);
    lineEnds.pop_back(); // the whole file
    const std::size_t lines = lineEnds.size();
    for (std::size_t k = 0; k < lines; ++k) {
        if (k >= 15 && k + 15 < lines && k != lines / 2)
            continue;
        SCOPED_TRACE("cut after line " + std::to_string(k + 1));
        writeFiles(mp1.bytes(), full.substr(0, lineEnds[k]));
        rerun();
        ASSERT_EQ(platform.messages.size(), 1u);
        EXPECT_TRUE(contains(platform.messages[0].detail, namesPath + ", line "))
            << platform.messages[0].detail;
        EXPECT_EQ(state.document.mapChanged, 1);
        EXPECT_EQ(world->sector(5, 6).note, "gate");
    }

    writeFiles(mp1.bytes(), full);
    rerun();
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(world->item(3, 21, 1, ItemField::Name), "Sceptre");
    EXPECT_EQ(world->shopName(3, 21), "Temple");
}

TEST_F(QuestorCommandTest, BadNotePlacesAndAMissingNamesFileAreTold)
{
    writeFiles(oneSettlement().bytes(), "300,5,\"x\"\r\n");
    run();
    expectFailure(namesPath, "line 1");
    EXPECT_TRUE(contains(platform.messages[0].detail, "the number \"300\" does not fit its field"));
    EXPECT_EQ(state.document.mapChanged, 1);

    writeFiles(oneSettlement().bytes(), "201,5,\"x\"\r\n");
    rerun();
    expectFailure(namesPath, "line 1");
    EXPECT_TRUE(contains(platform.messages[0].detail, "outside the map"));

    std::filesystem::remove(namesPath);
    rerun();
    expectFailure(namesPath, "");
    EXPECT_EQ(world->sector(5, 6).settlementName, "1");
}

} // namespace
} // namespace wayscribe
