#pragma once

#include "model/change_history.h"

#include <QObject>

namespace wayscribe {

// The change history's notice as a Qt signal, so that any window can follow
// the world: after every edit, undo and redo that changed something.
class WorldChangeSignal : public QObject {
    Q_OBJECT
public:
    WorldChangeSignal(ChangeHistory &history, QObject *parent);
    ~WorldChangeSignal() override;

signals:
    void worldChanged(const wayscribe::WorldChange &change);

private:
    ChangeHistory &history_;
    int subscription_;
};

} // namespace wayscribe
