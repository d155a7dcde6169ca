// wayscribe: the desktop program.
#include "app/Orvens_Mapper.h"
#include "app/app_paths.h"
#include "app/qt_platform.h"
#include "model/program_state.h"
#include "model/world.h"
#include "shared/ui/qt_text.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QScreen>

#include <memory>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("Wayscribe");
    QApplication::setOrganizationName("Wayscribe");
    // Ties the window to its menu entry and shows the installed icon.
    QGuiApplication::setDesktopFileName("io.github.wayscribe.Wayscribe");
    QApplication::setWindowIcon(QIcon::fromTheme("io.github.wayscribe.Wayscribe"));

    auto world = std::make_unique<wayscribe::World>();
    wayscribe::ProgramState state;
    wayscribe::QtPlatform platform;
    wayscribe::Orvens_Mapper window(*world, state, platform, wayscribe::locateAppPaths());
    platform.attach(&window);
    // As large as a comfortable window gets, and never larger than the screen.
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    window.resize(QSize(1280, 880).boundedTo(screen * 0.95));
    window.show();
    const QStringList args = QApplication::arguments();
    const std::string mapToOpen =
        args.size() > 1 ? wayscribe::fromQString(QFileInfo(args.at(1)).absoluteFilePath()) : std::string();
    if (!window.startUp(mapToOpen))
        return 1;
    return app.exec();
}
