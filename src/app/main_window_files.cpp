// The main window's ways of opening files besides the file commands: maps
// and turn reports dropped onto it, and the recent maps.
#include "app/Orvens_Mapper.h"

#include "import/batch_import.h"
#include "model/file_paths.h"
#include "model/program_state.h"
#include "shared/ui/qt_text.h"
#include "storage/desktop_options.h"
#include "storage/options_file.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMetaObject>
#include <QMimeData>
#include <QUrl>

#include <vector>

namespace wayscribe {

namespace {

enum class DroppedKind { Other, Map, Report };

DroppedKind kindOf(const QUrl &url)
{
    if (!url.isLocalFile())
        return DroppedKind::Other;
    const QString suffix = QFileInfo(url.toLocalFile()).suffix().toLower();
    if (suffix == "om1")
        return DroppedKind::Map;
    if (suffix == "htm" || suffix == "html")
        return DroppedKind::Report;
    return DroppedKind::Other;
}

} // namespace

void Orvens_Mapper::dragEnterEvent(QDragEnterEvent *event)
{
    // While another window holds the main window's controls, or a file job
    // runs, nothing is taken.
    if (!event->mimeData()->hasUrls() || !menuBar()->isEnabled() || state_.document.fileBusy)
        return;
    for (const QUrl &url : event->mimeData()->urls())
        if (kindOf(url) != DroppedKind::Other) {
            event->acceptProposedAction();
            return;
        }
}

void Orvens_Mapper::dropEvent(QDropEvent *event)
{
    if (!menuBar()->isEnabled() || state_.document.fileBusy)
        return;
    std::string map;
    std::vector<std::string> reports;
    for (const QUrl &url : event->mimeData()->urls()) {
        const std::string path = fromQString(QFileInfo(url.toLocalFile()).absoluteFilePath());
        switch (kindOf(url)) {
        case DroppedKind::Map:
            // One map at a time: the first one dropped.
            if (map.empty())
                map = path;
            break;
        case DroppedKind::Report:
            reports.push_back(path);
            break;
        case DroppedKind::Other:
            break;
        }
    }
    event->acceptProposedAction();
    // A map dropped with reports is opened first, and the reports go onto
    // it, unless the person keeps the map they have.
    if (!map.empty()) {
        const std::string before = state_.document.mapFileName;
        openMap(true, map);
        if (state_.document.mapFileName != map && state_.document.mapFileName == before)
            reports.clear();
    }
    if (!reports.empty())
        undoable("Import Dropped Reports",
                 [this, &reports] { importHtmlFiles(world_, state_, platform_, reports, writeOptions); })();
    followDocument();
}

void Orvens_Mapper::addRecentMapsMenu(QMenu *fileMenu)
{
    // After the file commands, behind a separator of its own.
    const QList<QAction *> items = fileMenu->actions();
    QAction *before = nullptr;
    for (qsizetype i = 0; i + 1 < items.size(); ++i)
        if (items[i]->objectName() == "mnuFileExit")
            before = items[i + 1];
    recentMaps_ = new QMenu("&Recent Maps", fileMenu);
    recentMaps_->setObjectName("mnuFileRecent");
    fileMenu->insertSeparator(before)->setObjectName("mnuFileSepRecent");
    fileMenu->insertMenu(before, recentMaps_);
    connect(recentMaps_, &QMenu::aboutToShow, this, &Orvens_Mapper::fillRecentMapsMenu);
    fillRecentMapsMenu();
}

void Orvens_Mapper::fillRecentMapsMenu()
{
    recentMaps_->clear();
    const std::vector<std::string> &recent = state_.options.desktop.recentMaps;
    int number = 0;
    for (const std::string &path : recent) {
        ++number;
        const QString text = toQString(path);
        QAction *item = recentMaps_->addAction(QString("&%1 %2").arg(number).arg(text));
        item->setObjectName(QString("mnuFileRecent%1").arg(number));
        // A map moved or deleted since stays listed, so that the person sees
        // where it was, but cannot be opened.
        item->setEnabled(fileExists(path));
        item->setToolTip(text);
        connect(item, &QAction::triggered, this, [this, path] {
            if (!state_.document.fileBusy)
                openMap(true, path);
            followDocument();
        });
    }
    recentMaps_->setEnabled(!recent.empty());
}

void Orvens_Mapper::rememberMapFile()
{
    // A map is remembered once it is its own file: read whole, or saved.
    const std::string &name = state_.document.mapFileName;
    if (name == rememberedMapFile_ || state_.document.mapChanged || name.find('/') == std::string::npos)
        return;
    rememberedMapFile_ = name;
    std::vector<std::string> &recent = state_.options.desktop.recentMaps;
    if (!recent.empty() && recent.front() == name)
        return;
    rememberRecentMap(state_.options.desktop, name);
    writeOptions(state_, platform_);
    // Queued: the item that opened this map may be the one sending now, and
    // refilling the menu deletes its items.
    QMetaObject::invokeMethod(this, &Orvens_Mapper::fillRecentMapsMenu, Qt::QueuedConnection);
}

} // namespace wayscribe
