// A quoted field of a turn report may span lines; what it leaves in the
// one-line fields must not break the saved map.
#include "import_fixture.h"
#include "storage/map_file.h"

namespace wayscribe::test {

using LineBreakImport = ImportTest;

TEST_F(LineBreakImport, AShopRowSpanningTwoLinesIsStoredOnOneAndTheSavedMapReadsBack)
{
    ReportShape shape;
    shape.heading = "TOWN OF BRACKWATER (23)";
    shape.afterHeading = {"", ""};
    shape.shops = {shopHeader("7", "Weaponsmith"), "\"" + tableRow("101", "Long\r\nsword", "150") + "\"",
                   tableRow("102", "Dagger", "12")};
    readText(reportText(shape));

    EXPECT_EQ(world->shopName(23, 7), "Weaponsmith");
    EXPECT_EQ(item(23, 7, 1, ItemField::Name), "Long  sword");
    EXPECT_EQ(item(23, 7, 1, ItemField::Price), "150");
    EXPECT_EQ(item(23, 7, 2, ItemField::Name), "Dagger");

    FileError error;
    ASSERT_TRUE(writeMapFile(dir.file("out.om1"), *world, 7, error)) << error.describe();
    auto reread = std::make_unique<World>();
    std::uint8_t game = 0;
    const MapReadResult read = readMapFile(dir.file("out.om1"), *reread, game);
    ASSERT_TRUE(read.ok) << read.error.describe();
    EXPECT_EQ(reread->item(23, 7, 1, ItemField::Name), "Long  sword");
    EXPECT_EQ(reread->item(23, 7, 2, ItemField::Name), "Dagger");
}

} // namespace wayscribe::test
