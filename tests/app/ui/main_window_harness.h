#pragma once

#include "app/Orvens_Mapper.h"
#include "app/ui/window_platform.h"
#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "view/draw/tile_sheet.h"
#include "view/ui/map_picture.h"

#include <QTest>

#include <memory>
#include <string>

namespace wayscribe::test {

// The main window on its own world, options file and scripted platform.
struct Harness {
    TempDir dir;
    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    WindowPlatform platform;
    std::unique_ptr<Orvens_Mapper> window;

    explicit Harness(const std::string &graphics = WAYSCRIBE_GRAPHICS) : graphicsFolder(graphics) {}
    std::string graphicsFolder;
    std::string recoveryFolder; // empty: no autosave

    void start(const std::string &options = {}, const std::string &mapToOpen = {})
    {
        if (!options.empty())
            writeFile(dir.file("wayscribe.ini"), options);
        AppPaths paths{dir.path().string(), graphicsFolder, dir.file("wayscribe.ini"), recoveryFolder};
        window = std::make_unique<Orvens_Mapper>(*world, state, platform, paths);
        platform.host = window.get();
        window->resize(1000, 700);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QVERIFY(window->startUp(mapToOpen));
    }
    std::string saveMap(const std::string &name, int terrainAt11)
    {
        World w;
        w.sector(1, 1).terrain = static_cast<std::uint8_t>(terrainAt11);
        FileError e;
        writeMapFile(dir.file(name), w, 3, e);
        return dir.file(name);
    }
    template <class T> T *find(const char *name) { return window->findChild<T *>(name); }
    QImage tileAt(int column, int row)
    {
        return window->mapPicture()->backBuffer().copy((column - 1) * 16, (row - 1) * 16, 16, 16);
    }
    QImage sheetEntry(int entry)
    {
        return window->tileSheet().sheet().copy(QRect(TileSheet::entryPosition(entry), QSize(16, 16)));
    }
};

} // namespace wayscribe::test
