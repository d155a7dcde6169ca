#include "model/change_history.h"
#include "model/saved_content.h"
#include "model/world.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>

using namespace wayscribe;

namespace {

using Sectors = std::vector<std::pair<std::uint8_t, std::uint8_t>>;

// A map with something in every table, the same every time.
void fill(World &w, DocumentState &doc)
{
    doc.gameNumber = 12;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            Sector &s = w.sector(x, y);
            s.terrain = static_cast<std::uint8_t>((x * y) % 18 + 1);
            if ((x + y) % 7 == 0)
                s.note = "note " + std::to_string(x) + "\r\n" + std::to_string(y);
        }
    for (int n = 1; n <= 20; ++n) {
        w.settlement(n) = {1, static_cast<std::uint8_t>(n), static_cast<std::uint8_t>(2 * n),
                           "State " + std::to_string(n)};
        w.sector(n, 2 * n).settlementNumber = static_cast<std::uint8_t>(n);
        w.sector(n, 2 * n).settlementName = "Town " + std::to_string(n);
        w.setShopName(n, n % kShopCount, "Shop of " + std::to_string(n));
        w.setItem(n, n % kShopCount, 3, ItemField::Price, std::to_string(n * 10));
    }
    for (int d = 1; d <= 5; ++d) {
        w.dungeon(d).name = "Cave " + std::to_string(d);
        w.dungeon(d).levels = static_cast<std::int16_t>(d);
        w.dungeon(d).level[d].map = "##\r\n#.";
        w.dungeon(d).level[d].roomData = "room " + std::to_string(d);
    }
    for (int k = kQuestorFirstItem; k <= kQuestorLastItem; k += 50)
        w.questorItemName(k) = "Item " + std::to_string(k);
}

// Two copies of the filled map: the one the history works on and the
// reference that edits are replayed on by hand.
struct Maps {
    std::unique_ptr<World> world = std::make_unique<World>(), reference = std::make_unique<World>();
    DocumentState doc, referenceDoc;
    Maps()
    {
        fill(*world, doc);
        fill(*reference, referenceDoc);
    }
};

void expectSame(const World &a, const DocumentState &aDoc, const World &b, const DocumentState &bDoc)
{
    EXPECT_TRUE(sameSavedContent(a, b));
    EXPECT_EQ(aDoc.gameNumber, bDoc.gameNumber);
    for (int k = kQuestorFirstItem; k <= kQuestorLastItem; ++k)
        ASSERT_EQ(a.questorItemName(k), b.questorItemName(k)) << k;
}

// One edit of every kind of record and of every way of writing a shop.
void editEverything(World &w, DocumentState &doc)
{
    Sector &s = w.sector(3, 200);
    s.terrain = 16;
    s.note = "Village\r\nwell";
    s.settlementNumber = 21;
    s.settlementName = "Newtown";
    w.settlement(21) = {1, 3, 200, "Lakeland"};
    w.settlement(4).cityState.clear();
    w.setShopName(21, 0, "Smith");
    w.setItem(21, 0, 20, ItemField::Number, "77");
    ShopTexts texts = w.shop(4, 110);
    texts.item(1, ItemField::Name) = "Rope";
    w.setShop(4, 110, texts);
    JoinedShopTexts joined;
    for (int k = 0; k < PackedShop::kFieldCount; ++k)
        joined.add(k == 0 ? "Joined" : "");
    w.setShop(5, 5, joined);
    w.dungeon(200).name = "Deep";
    w.dungeon(200).levels = 10;
    w.dungeon(2).level[10].roomData = "r\r\nr";
    w.questorItemName(1000) = "Crown";
    doc.gameNumber = 13;
}

} // namespace

TEST(SameSavedContent, SeesEverySavedFieldButNotTheMovementMarker)
{
    const std::vector<std::function<void(World &)>> edits = {
        [](World &w) { w.sector(200, 200).terrain = 2; },
        [](World &w) { w.sector(1, 1).note += " "; },
        [](World &w) { w.sector(9, 9).settlementNumber = 1; },
        [](World &w) { w.sector(9, 9).settlementName = "X"; },
        [](World &w) { w.settlement(160).inUse = 1; },
        [](World &w) { w.settlement(160).x = 1; },
        [](World &w) { w.settlement(160).y = 1; },
        [](World &w) { w.settlement(1).cityState = "Y"; },
        [](World &w) { w.setShopName(160, 0, "Z"); },
        [](World &w) { w.setItem(1, 110, 20, ItemField::Price, "1"); },
        [](World &w) { w.dungeon(200).name = "D"; },
        [](World &w) { w.dungeon(1).levels = 0; },
        [](World &w) { w.dungeon(1).level[1].map = "m"; },
        [](World &w) { w.dungeon(1).level[10].roomData = "r"; },
    };
    for (std::size_t i = 0; i < edits.size(); ++i) {
        Maps m;
        edits[i](*m.world);
        EXPECT_FALSE(sameSavedContent(*m.world, *m.reference)) << "edit " << i;
    }
    Maps m;
    m.world->sector(5, 5).moveMark = 3;
    m.world->questorItemName(101) = "not saved";
    EXPECT_TRUE(sameSavedContent(*m.world, *m.reference));
}

TEST(ChangeHistory, UndoAndRedoRestoreEveryKindOfRecordExactly)
{
    Maps m;
    ChangeHistory history(*m.world, m.doc);
    std::vector<WorldChange> told;
    history.subscribe([&](const WorldChange &c) { told.push_back(c); });

    const WorldChange change = history.apply("Edit everything", [&] { editEverything(*m.world, m.doc); });
    EXPECT_FALSE(change.wholeMap);
    EXPECT_EQ(change.sectors, (Sectors{{3, 200}}));
    EXPECT_TRUE(change.settlements && change.shops && change.dungeons && change.gameNumber &&
                change.questorNames);
    EXPECT_EQ(history.undoName(), "Edit everything");

    m.doc.mapChanged = 0;
    EXPECT_EQ(history.undo().sectors, (Sectors{{3, 200}}));
    expectSame(*m.world, m.doc, *m.reference, m.referenceDoc);
    EXPECT_EQ(m.doc.mapChanged, 1);
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(history.redoName(), "Edit everything");

    m.doc.mapChanged = 0;
    history.redo();
    editEverything(*m.reference, m.referenceDoc);
    expectSame(*m.world, m.doc, *m.reference, m.referenceDoc);
    EXPECT_EQ(m.doc.mapChanged, 1);

    ASSERT_EQ(told.size(), 3u);
    EXPECT_TRUE(told[1].shops && told[2].gameNumber);
}

TEST(ChangeHistory, KeepsOnlyStepsThatChangedSavedContent)
{
    Maps m;
    ChangeHistory history(*m.world, m.doc);
    int told = 0;
    history.subscribe([&](const WorldChange &) { ++told; });
    // Taking records for writing and writing back what they hold, or moving
    // only the movement marker, changes nothing the file keeps.
    const WorldChange change = history.apply("Look", [&] {
        World &w = *m.world;
        for (int y = 1; y <= kMapSize; ++y)
            for (int x = 1; x <= kMapSize; ++x)
                w.sector(x, y).moveMark = 9;
        w.settlement(1).x = w.settlement(1).x;
        w.setShopName(1, 1, std::string(w.shopName(1, 1)));
        w.setShop(2, 2, w.shop(2, 2));
        (void)w.dungeon(1);
        (void)w.questorItemName(101);
        m.doc.mapChanged = 1;
    });
    EXPECT_TRUE(change.empty());
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(told, 0);
    EXPECT_EQ(m.doc.mapChanged, 1); // apply leaves the flag to the command

    // Undo does not reset the marker either.
    history.apply("Terrain", [&] { m.world->sector(5, 5).terrain = 2; });
    m.world->sector(5, 5).moveMark = 4;
    history.undo();
    EXPECT_EQ(m.world->sector(5, 5).terrain, m.reference->sector(5, 5).terrain);
    EXPECT_EQ(m.world->sector(5, 5).moveMark, 4);
}

TEST(ChangeHistory, StepsNestJoinAndDropRedo)
{
    Maps m;
    ChangeHistory history(*m.world, m.doc);
    history.apply("Outer", [&] {
        m.world->sector(1, 1).terrain = 2;
        EXPECT_TRUE(history.apply("Inner", [&] { m.world->sector(2, 1).terrain = 2; }).empty());
        EXPECT_FALSE(history.canUndo()); // not while a step is open
        m.world->sector(1, 1).terrain = 3;
    });
    EXPECT_EQ(history.undoName(), "Outer");
    history.apply("Game", [&] { m.doc.gameNumber = 99; });
    history.undo();
    history.undo();
    EXPECT_FALSE(history.canUndo());
    expectSame(*m.world, m.doc, *m.reference, m.referenceDoc);

    history.redo();
    EXPECT_EQ(history.redoName(), "Game");
    history.apply("Brush", [&] { m.world->sector(9, 9).terrain = 2; });
    EXPECT_FALSE(history.canRedo());
    history.undo();
    EXPECT_EQ(history.undoName(), "Outer");
    EXPECT_EQ(m.doc.gameNumber, 12);
}

TEST(ChangeHistory, AnEditThatThrowsStaysUndoable)
{
    Maps m;
    ChangeHistory history(*m.world, m.doc);
    EXPECT_THROW(history.apply("Import",
                               [&] {
                                   m.world->sector(7, 7).note = "half";
                                   m.world->dungeon(201);
                               }),
                 std::out_of_range);
    ASSERT_TRUE(history.canUndo());
    history.undo();
    expectSame(*m.world, m.doc, *m.reference, m.referenceDoc);
    // The history is usable afterwards.
    history.redo();
    EXPECT_EQ(m.world->sector(7, 7).note, "half");
}

TEST(ChangeHistory, ClearInsideAStepIsUndoneWhole)
{
    Maps m;
    auto empty = std::make_unique<World>();
    DocumentState emptyDoc;
    ChangeHistory history(*m.world, m.doc);
    const WorldChange change = history.apply("New", [&] {
        m.world->sector(4, 4).terrain = 5; // touched before the clearing: its first state is kept
        m.world->clear();
        m.doc.gameNumber = 0;
    });
    EXPECT_TRUE(change.wholeMap);
    EXPECT_TRUE(change.sectors.empty());
    expectSame(*m.world, m.doc, *empty, emptyDoc);
    EXPECT_TRUE(history.undo().wholeMap);
    expectSame(*m.world, m.doc, *m.reference, m.referenceDoc);
    history.redo();
    expectSame(*m.world, m.doc, *empty, emptyDoc);
}

TEST(ChangeHistory, ReplacingTheDocumentEmptiesTheHistory)
{
    Maps m;
    ChangeHistory history(*m.world, m.doc);
    history.apply("Brush", [&] { m.world->sector(1, 1).terrain = 15; });
    const std::size_t bytes = history.memoryBytes();

    EXPECT_TRUE(history.replace([] {}).empty()); // a cancelled Open
    EXPECT_TRUE(history.canUndo());

    int told = 0;
    history.subscribe([&](const WorldChange &c) { told += c.wholeMap; });
    const WorldChange change = history.replace([&] {
        history.apply("Part of the load", [&] { m.world->clear(); });
        fill(*m.world, m.doc);
        EXPECT_EQ(history.memoryBytes(), bytes); // nothing copied
    });
    EXPECT_TRUE(change.wholeMap);
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(history.canUndo() || history.canRedo());

    // A new game number alone is a new document too.
    history.apply("Brush", [&] { m.world->sector(1, 1).terrain = 15; });
    EXPECT_TRUE(history.replace([&] { m.doc.gameNumber = 1; }).gameNumber);
    EXPECT_FALSE(history.canUndo());
}

TEST(ChangeHistory, DropsTheOldestStepsBeyondItsBudget)
{
    Maps m;
    ChangeHistory probe(*m.world, m.doc);
    const std::size_t base = probe.memoryBytes();
    probe.apply("One", [&] { m.world->sector(1, 1).terrain = 15; });
    const std::size_t perStep = probe.memoryBytes() - base;
    probe.undo();

    ChangeHistory history(*m.world, m.doc, 3 * perStep);
    for (int x = 1; x <= 10; ++x)
        history.apply("Brush", [&] { m.world->sector(x, 1).terrain = 15; });
    int undone = 0;
    while (history.canUndo()) {
        history.undo();
        ++undone;
    }
    EXPECT_EQ(undone, 3);
    EXPECT_EQ(m.world->sector(7, 1).terrain, 15);
    EXPECT_EQ(m.world->sector(8, 1).terrain, m.reference->sector(8, 1).terrain);

    // The newest step stays, however large.
    ChangeHistory tiny(*m.world, m.doc, 1);
    tiny.apply("A", [&] { m.world->clear(); });
    EXPECT_TRUE(tiny.canUndo());
}

TEST(ChangeHistory, LeavesTheWorldAsBeforeWhenGone)
{
    auto w = std::make_unique<World>();
    DocumentState doc;
    {
        ChangeHistory history(*w, doc);
        ChangeHistory second(*w, doc);
        history.apply("Outer", [&] {
            // One recorder per world: a second history cannot open a step inside.
            EXPECT_THROW(second.apply("Inner", [] {}), std::logic_error);
        });
    }
    w->sector(1, 1).terrain = 2;
    w->clear();
    EXPECT_EQ(w->sector(1, 1).terrain, 1);
    // A new history works on the same world.
    ChangeHistory history(*w, doc);
    history.apply("Brush", [&] { w->sector(1, 1).terrain = 15; });
    history.undo();
    EXPECT_EQ(w->sector(1, 1).terrain, 1);
}

TEST(ChangeHistory, StepsWithTheSameJoinKeyInARowBecomeOne)
{
    Maps m;
    ChangeHistory history(*m.world, m.doc);
    const auto type = [&](const std::string &name, const std::string &key) {
        history.apply(
            "Name", [&] { m.world->sector(1, 2).settlementName = name; }, key);
    };
    // A run of keystrokes, each touching the name, and one also a shop and a
    // settlement record that sort before and after those the run holds.
    type("T", "name");
    type("To", "name");
    history.apply(
        "Name",
        [&] {
            m.world->sector(1, 2).settlementName = "Tow";
            m.world->setShopName(3, 4, "Inn");
            m.world->settlement(30).cityState = "Far";
        },
        "name");
    type("Town", "name");
    history.undo();
    EXPECT_FALSE(history.canUndo());
    expectSame(*m.world, m.doc, *m.reference, m.referenceDoc);
    history.redo();
    EXPECT_EQ(m.world->sector(1, 2).settlementName, "Town");
    EXPECT_EQ(m.world->shopName(3, 4), "Inn");
    EXPECT_EQ(m.world->settlement(30).cityState, "Far");
    history.undo();

    // Another key, an undo or a step without a key ends the run.
    const auto undoAll = [&] {
        int steps = 0;
        while (history.canUndo()) {
            history.undo();
            ++steps;
        }
        return steps;
    };
    history.clear();
    type("A", "name");
    type("B", "city");
    type("C", "name");
    history.apply("Brush", [&] { m.world->sector(9, 9).terrain = 2; });
    type("D", "name");
    history.undo();
    history.redo();
    type("E", "name");
    EXPECT_EQ(undoAll(), 6);
    expectSame(*m.world, m.doc, *m.reference, m.referenceDoc);

    // A step that changed nothing is no step and does not end the run.
    type("F", "name");
    history.apply("Nothing", [] {});
    type("G", "name");
    EXPECT_EQ(undoAll(), 1);
}
