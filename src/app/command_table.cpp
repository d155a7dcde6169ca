#include "app/command_table.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace wayscribe {

CommandTable::CommandTable(std::function<bool()> busy, QObject *parent)
    : QObject(parent), busy_(std::move(busy))
{
}

QAction *CommandTable::create(const Command &command)
{
    auto *action = new QAction(command.caption, parent());
    action->setObjectName(command.name);
    action->setCheckable(command.checkable);
    if (!command.shortcut.isEmpty())
        action->setShortcut(command.shortcut);
    if (!command.run)
        action->setEnabled(false);
    else
        connect(action, &QAction::triggered, this, [this, command] {
            if (command.guard == Command::NotWhileBusy && busy_())
                return;
            command.run();
        });
    actions_[command.name] = action;
    return action;
}

QMenu *CommandTable::addMenu(QMenuBar *bar, const char *name, const QString &title,
                             const std::vector<Command> &items)
{
    QMenu *menu = bar->addMenu(title);
    menu->setObjectName(name);
    for (const Command &item : items) {
        if (item.isSeparator())
            menu->addSeparator()->setObjectName(item.name);
        else
            menu->addAction(create(item));
    }
    return menu;
}

void CommandTable::fillToolbar(QToolBar *toolbar, const std::vector<Command> &buttons)
{
    for (const Command &command : buttons) {
        auto *button = new QToolButton(toolbar);
        button->setObjectName(command.name);
        button->setDefaultAction(create(command));
        button->setAccessibleName(command.caption);
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        toolbar->addWidget(button);
        if (command.picture)
            pictures_[command.name] = command.picture;
    }
}

QAction *CommandTable::action(const std::string &name) const
{
    const auto it = actions_.find(name);
    return it == actions_.end() ? nullptr : it->second;
}

} // namespace wayscribe
