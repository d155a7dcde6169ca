#pragma once

#include <QKeySequence>
#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <string>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QToolBar;

namespace wayscribe {

// One command of the main window, as a menu item or a toolbar button.
struct Command {
    enum Guard { Always, NotWhileBusy };

    const char *name = nullptr; // object name of the item or button
    QString caption = {};
    std::function<void()> run = {}; // empty: its window comes with a later version, so it stays disabled
    Guard guard = Always;           // NotWhileBusy: does nothing while a file job runs
    bool checkable = false;
    QKeySequence shortcut = {};
    const char *picture = nullptr; // toolbar picture in the graphics folder

    // A separator line of a menu, with its object name.
    static Command separator(const char *name) { return {name, {}, {}}; }
    bool isSeparator() const { return caption.isEmpty(); }
};

// The table every menu and the toolbar are filled from. Each command becomes
// one QAction; the busy guard is the command's property, tested in one place.
class CommandTable : public QObject {
    Q_OBJECT
public:
    CommandTable(std::function<bool()> busy, QObject *parent);

    QMenu *addMenu(QMenuBar *bar, const char *name, const QString &title, const std::vector<Command> &items);
    void fillToolbar(QToolBar *toolbar, const std::vector<Command> &buttons);

    QAction *action(const std::string &name) const;
    // The toolbar commands' pictures, by command name.
    const std::map<std::string, std::string> &toolbarPictures() const { return pictures_; }

private:
    QAction *create(const Command &command);

    std::function<bool()> busy_;
    std::map<std::string, QAction *> actions_;
    std::map<std::string, std::string> pictures_;
};

} // namespace wayscribe
