#include "app/app_paths.h"

#include "model/graphics_folder.h"
#include "shared/ui/qt_text.h"
#include "storage/options_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace wayscribe {

AppPaths locateAppPaths()
{
    AppPaths paths;
    const QString app = QCoreApplication::applicationDirPath();
    paths.appFolder = fromQString(app);
    const GraphicsFolder graphics = findGraphicsFolder(QFile::encodeName(app).toStdString());
    paths.graphicsFolder = fromQString(QFile::decodeName(graphics.path.c_str()));
    // An installed program keeps each person's options apart, even when its
    // folder can be written (as it can by root).
    const QString beside = app + "/" + kOptionsFileName;
    const QFileInfo folder(app);
    if (graphics.besideProgram && folder.isWritable() &&
        (!QFileInfo::exists(beside) || QFileInfo(beside).isWritable())) {
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
