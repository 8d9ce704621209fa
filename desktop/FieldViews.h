#pragma once
/// The views of the fields: text box and combo box. They report every change of their text, from whatever
/// source.
#include "desktop/ControlView.h"
#include "desktop/FieldText.h"
#include "desktop/RefusalFrame.h"
#include "forms/ComboBox.h"
#include "forms/Controls.h"

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
    FieldText myText;
};

/// The entries of a combo box as a Qt model. It reads them in the box and keeps no copy.
class ComboEntries : public QAbstractListModel {
public:
    explicit ComboEntries(const ComboBox &pBox) : myBox(pBox) {}

    /// Tells Qt how many entries there are if that has changed.
    void Sync();

    int rowCount(const QModelIndex &pParent = {}) const override {
        return pParent.isValid() ? 0 : myToldCount;
    }
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
    bool MayLoseFocus() override { return myBox.MayLoseFocus(); }

    void showPopup() override;

protected:
    Qt::FocusPolicy FocusPolicy() const override { return Qt::StrongFocus; }
    void Show() override;
    void keyPressEvent(QKeyEvent *pEvent) override;
    void keyReleaseEvent(QKeyEvent *pEvent) override;
    void wheelEvent(QWheelEvent *pEvent) override;
    QString Description() const override;
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;

private:
    void PrepareEdit();
    void CaretMoved();
    void ShowText();
    /// Makes the popup wide enough for its entries.
    void WidenPopup();
    /// Steps through the entries, or opens their list. Returns whether the key does so.
    bool StepByKey(const QKeyEvent &pEvent);
    /// Picks the entry pStep entries after the current one, or the first or last entry if that is too far. If
    /// none is current, counts from just before the first entry that begins like the text.
    void Step(int pStep);
    /// The current entry, else the one that equals the text, case ignored; -1 if there is none.
    int CurrentEntry() const;
    /// The first entry that begins like the text, case ignored; -1 if there is none, or no text.
    int EntryLikeText() const { return myBox.Text().empty() ? -1 : myBox.FindString(myBox.Text()); }

    ComboBox &myBox;
    ComboEntries myEntries;
    FieldText myText;
    RefusalFrame myFrame;
    bool myIsShowing = false;
};
