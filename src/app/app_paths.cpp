#include "app/app_paths.h"

#include "shared/ui/qt_text.h"
#include "storage/options_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace wayscribe {

AppPaths locateAppPaths()
{
    AppPaths paths;
    const QString app = QCoreApplication::applicationDirPath();
    paths.appFolder = fromQString(app);
    paths.graphicsFolder = fromQString(app + "/graphics");
    const QString beside = app + "/" + kOptionsFileName;
    const QFileInfo folder(app);
    if (folder.isWritable() && (!QFileInfo::exists(beside) || QFileInfo(beside).isWritable())) {
        paths.optionsFile = fromQString(beside);
    } else {
        const QString config = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
        QDir().mkpath(config);
        paths.optionsFile = fromQString(config + "/" + kOptionsFileName);
    }
    paths.recoveryFolder =
        fromQString(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + "/recovery");
    return paths;
}

} // namespace wayscribe
