#include "shared/ui/world_change_signal.h"

namespace wayscribe {

WorldChangeSignal::WorldChangeSignal(ChangeHistory &history, QObject *parent)
    : QObject(parent), history_(history),
      subscription_(history.subscribe([this](const WorldChange &change) { emit worldChanged(change); }))
{
}

WorldChangeSignal::~WorldChangeSignal()
{
    history_.unsubscribe(subscription_);
}

} // namespace wayscribe
