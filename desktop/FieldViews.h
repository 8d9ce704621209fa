#pragma once
/// The faces of the fields: text box and combo box. They follow every change of their text, whatever made it.
#include "desktop/ControlView.h"
#include "platform/ComboBox.h"
#include "platform/Controls.h"

#include <QAbstractListModel>
#include <QComboBox>
#include <QLineEdit>

class TextBoxView : public QLineEdit, public ControlView {
public:
    TextBoxView(Acts &pActs, TextBox &pBox, QWidget &pParent);
    QWidget &Widget() override { return *this; }

protected:
    Qt::FocusPolicy FocusPolicy() const override { return Qt::StrongFocus; }
    void Show() override;
    void keyPressEvent(QKeyEvent *pEvent) override;

private:
    void Edited(const QString &pText);

    TextBox &myBox;
    bool myIsShowing = false;
    qsizetype myCaretFromEnd = 0;
    bool myIsEditing = false;
};

/// The entries of a combo box, read where they are.
class ComboEntries : public QAbstractListModel {
public:
    explicit ComboEntries(const ComboBox &pBox) : myBox(pBox) {}

    /// Tells Qt how many entries there are if that has changed.
    void Sync();

    int rowCount(const QModelIndex &pParent = {}) const override;
    QVariant data(const QModelIndex &pIndex, int pRole) const override;

private:
    const ComboBox &myBox;
    int myToldCount = 0;
};

class ComboBoxView : public QComboBox, public ControlView {
public:
    ComboBoxView(Acts &pActs, ComboBox &pBox, QWidget &pParent);
    ~ComboBoxView() override;
    QWidget &Widget() override { return *this; }
    bool MayLoseFocus() const override { return myBox.MayLoseFocus(); }

    void showPopup() override;

protected:
    Qt::FocusPolicy FocusPolicy() const override { return Qt::StrongFocus; }
    void Show() override;
    void keyPressEvent(QKeyEvent *pEvent) override;
    void keyReleaseEvent(QKeyEvent *pEvent) override;
    void wheelEvent(QWheelEvent *pEvent) override;

private:
    void PrepareEdit();
    void Edited(const QString &pText);
    void CaretMoved();
    void ShowText();
    /// Makes the popup wide enough for its entries, where the box is narrower.
    void WidenPopup();
    /// Picks the entry pStep further on from the current one, if there is one.
    void Step(int pStep);
    /// The current entry or, when none is, the one that says what the box says; -1 for none.
    int NearestIndex() const;

    ComboBox &myBox;
    ComboEntries myEntries;
    bool myIsShowing = false;
};
