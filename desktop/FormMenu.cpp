#include "desktop/FormMenu.h"

#include "desktop/TextCodec.h"
#include "forms/Form.h"

#include <QMenu>

FormMenu::FormMenu(Acts &pActs, const Form &pForm, QMenuBar &pBar) : myBar(pBar) {
    for (const auto &control : pForm.Controls()) {
        const auto *item = dynamic_cast<const MenuItem *>(control.get());
        if (item != nullptr) {
            QMenu *above = item->Above() == nullptr ? nullptr : MenuOf(*item->Above());
            AddEntry(pActs, *item, above == nullptr ? static_cast<QWidget &>(pBar) : *above);
        }
    }
    Sync();
}

QMenu *FormMenu::MenuOf(const MenuItem &pItem) {
    for (const Entry &entry : myEntries) {
        if (entry.item == &pItem) {
            if (entry.action->menu() == nullptr) {
                entry.action->setMenu(new QMenu(&myBar));
            }
            return entry.action->menu();
        }
    }
    return nullptr;
}

void FormMenu::AddEntry(Acts &pActs, const MenuItem &pItem, QWidget &pParent) {
    auto *action = new QAction(&myBar);
    action->setMenuRole(QAction::NoRole);
    action->setShortcut(QKeySequence(ToQt(pItem.Shortcut()), QKeySequence::PortableText));
    QObject::connect(action, &QAction::triggered, &myBar,
                     [&pActs, &pItem] { pActs.Handle([&pItem] { pItem.Choose(); }); });
    pParent.addAction(action);
    myEntries.push_back({&pItem, action});
}

void FormMenu::Sync() const {
    for (const Entry &entry : myEntries) {
        entry.action->setText(ToQt(entry.item->Caption()));
        entry.action->setEnabled(entry.item->Enabled());
    }
}
