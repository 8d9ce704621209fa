#include "desktop/ControlView.h"

#include "desktop/FieldViews.h"
#include "desktop/FormWindow.h"
#include "desktop/Look.h"
#include "desktop/RecordList.h"
#include "desktop/TextCodec.h"
#include "desktop/Views.h"
#include "system/Memory.h"

void ControlView::Sync() {
    if (myShownRevision == myControl.Revision()) {
        return;
    }
    myShownRevision = myControl.Revision();
    const auto show = [this] {
        ShowCommon();
        Show();
    };
    RunOrUndo(show, [this] { myShownRevision = 0; });
}

QRect ControlView::PlaceOf() const {
    return PixelRect(myControl);
}

QString ControlView::Description() const {
    return ToQt(myControl.AccessibleDescription());
}

void ControlView::Describe(QWidget &pWidget, const QString &pText) {
    if (pWidget.accessibleDescription() != pText) {
        pWidget.setAccessibleDescription(pText);
    }
}

bool ControlView::MayTakeFocus() {
    auto *form = dynamic_cast<FormWindow *>(Widget().window());
    return form == nullptr || form->MayFocusMoveTo(&Widget());
}

void ControlView::ShowCommon() {
    QWidget &widget = Widget();
    widget.setGeometry(PlaceOf());
    widget.setFocusPolicy(TakesFocus() ? FocusPolicy() : Qt::NoFocus);
    widget.setVisible(myControl.Visible());
    widget.setToolTip(ToQt(myControl.ToolTipText()));
    widget.setAccessibleName(ToQt(myControl.AccessibleName(), mostShown));
    Describe(widget, Description());
    // Qt would move the focus from a disabled button to the next one. A second press of the space bar would
    // then act on that one.
    auto *form = dynamic_cast<FormWindow *>(widget.window());
    if (!myControl.Enabled() && form != nullptr && form->focusWidget() == &widget) {
        form->FocusFallback();
    }
    widget.setEnabled(myControl.Enabled());
}

std::unique_ptr<ControlView> MakeView(Acts &pActs, ::Control &pControl, QWidget &pParent) {
    constexpr ViewMaker *makers[] = {MakeLabelView,
                                     MakeButtonView,
                                     MakePictureView,
                                     MakeLineView,
                                     MakeViewOf<TextBoxView, TextBox>,
                                     MakeViewOf<ComboBoxView, ComboBox>,
                                     MakeViewOf<RecordList, ListView>};
    for (ViewMaker *const make : makers) {
        if (auto view = make(pActs, pControl, pParent)) {
            return view;
        }
    }
    return nullptr;
}
