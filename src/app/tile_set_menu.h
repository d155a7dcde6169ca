#pragma once

#include <QObject>

#include <map>
#include <string>

class QAction;
class QMenuBar;

namespace wayscribe {

// The Graphics menu: one item per built-in tile set, offered when the set's
// pictures are there, with a check mark on the set in use.
class TileSetMenu : public QObject {
    Q_OBJECT
public:
    TileSetMenu(QMenuBar *bar, QObject *parent);

    void enableAvailable(const std::string &graphicsFolder);
    void markCurrent(const std::string &setName);

signals:
    void chosen(const std::string &setName);

private:
    std::map<std::string, QAction *> items_; // by the set's folder name
};

} // namespace wayscribe
