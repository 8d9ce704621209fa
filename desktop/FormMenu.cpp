#include "desktop/FormMenu.h"

#include "desktop/TextCodec.h"
#include "forms/Form.h"

#include <QMenu>

FormMenu::FormMenu(Acts &pActs, const Form &pForm, QMenuBar &pBar) : myBar(pBar) {
    for (const auto &control : pForm.Controls()) {
        const auto *item = dynamic_cast<const MenuItem *>(control.get());
        if (item != nullptr) {
            AddEntry(pActs, *item);
        }
    }
    Sync();
}

QWidget &FormMenu::ParentOf(const MenuItem &pItem) const {
    if (pItem.Above() == nullptr) {
        return myBar;
    }
    QAction &above = *myEntries.at(pItem.Above());
    if (above.menu() == nullptr) {
        above.setMenu(new QMenu(&myBar));
    }
    return *above.menu();
}

void FormMenu::AddEntry(Acts &pActs, const MenuItem &pItem) {
    auto *action = new QAction(&myBar);
    action->setMenuRole(QAction::NoRole);
    action->setShortcut(QKeySequence(ToQt(pItem.Shortcut()), QKeySequence::PortableText));
    QObject::connect(action, &QAction::triggered, &myBar,
                     [&pActs, &pItem] { pActs.Run([&pItem] { pItem.Choose(); }); });
    ParentOf(pItem).addAction(action);
    myEntries.emplace(&pItem, action);
}

void FormMenu::Sync() const {
    for (const auto &[item, action] : myEntries) {
        action->setText(ToQt(item->Caption()));
        action->setEnabled(item->Enabled());
    }
}
