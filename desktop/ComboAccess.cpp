#include "desktop/ComboAccess.h"

#include "desktop/FieldViews.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>

namespace {

class ComboAccess : public QAccessibleWidget {
public:
    explicit ComboAccess(QComboBox &pBox) : QAccessibleWidget(&pBox, QAccessible::ComboBox), myBox(pBox) {}

    QString text(QAccessible::Text pKind) const override {
        return pKind == QAccessible::Value ? myBox.currentText() : QAccessibleWidget::text(pKind);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = true;
        state.expandable = true;
        state.expanded = IsOpen();
        return state;
    }

    QStringList actionNames() const override {
        return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &pName) override {
        if (pName != showMenuAction()) {
            QAccessibleWidget::doAction(pName);
        } else if (IsOpen()) {
            myBox.hidePopup();
        } else {
            myBox.showPopup();
        }
    }

private:
    bool IsOpen() const { return myBox.view()->isVisible(); }

    QComboBox &myBox;
};

} // namespace

void UseOwnAccessForComboBoxes() {
    QAccessible::installFactory([](const QString & /*pClass*/, QObject *pObject) -> QAccessibleInterface * {
        auto *box = dynamic_cast<ComboBoxView *>(pObject);
        return box == nullptr ? nullptr : new ComboAccess(*box);
    });
}
