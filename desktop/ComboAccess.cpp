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

    // The entries and the line edit, as in Qt's own view. The entries lie in a window of their own, so they
    // would count as nobody's.
    int childCount() const override { return 2; }
    QAccessibleInterface *child(int pIndex) const override {
        QWidget *const parts[] = {myBox.view(), myBox.lineEdit()};
        const bool isThere = pIndex >= 0 && pIndex < childCount();
        return isThere ? QAccessible::queryAccessibleInterface(parts[pIndex]) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *pChild) const override {
        const QObject *const part = pChild->object();
        return part == myBox.view() ? 0 : part == myBox.lineEdit() ? 1 : -1;
    }
    QAccessibleInterface *focusChild() const override { return child(1); }

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
