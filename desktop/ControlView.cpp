#include "desktop/ControlView.h"

#include "desktop/ButtonView.h"
#include "desktop/FieldViews.h"
#include "desktop/FormWindow.h"
#include "desktop/Look.h"
#include "desktop/RecordList.h"
#include "desktop/StillViews.h"
#include "desktop/TextCodec.h"
#include "system/Memory.h"

namespace {

/// Makes a view if pControl is a Kind. Returns whether it is.
template <typename View, typename Kind>
bool MakeAs(std::unique_ptr<ControlView> &pView, Acts &pActs, ::Control &pControl, QWidget &pParent) {
    auto *control = dynamic_cast<Kind *>(&pControl);
    if (control != nullptr) {
        pView = std::make_unique<View>(pActs, *control, pParent);
    }
    return control != nullptr;
}

} // namespace

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

void ControlView::ShowEnabled() {
    Widget().setEnabled(myControl.Enabled());
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
    widget.setAccessibleDescription(ToQt(myControl.AccessibleDescription()));
    ShowEnabled();
}

std::unique_ptr<ControlView> MakeView(Acts &pActs, ::Control &pControl, QWidget &pParent) {
    std::unique_ptr<ControlView> view;
    MakeAs<LabelView, Label>(view, pActs, pControl, pParent) ||
        MakeAs<TextBoxView, TextBox>(view, pActs, pControl, pParent) ||
        MakeAs<ComboBoxView, ComboBox>(view, pActs, pControl, pParent) ||
        MakeAs<ButtonView, CommandButton>(view, pActs, pControl, pParent) ||
        MakeAs<RecordList, ListView>(view, pActs, pControl, pParent) ||
        MakeAs<PictureView, PictureBox>(view, pActs, pControl, pParent) ||
        MakeAs<LineView, Line>(view, pActs, pControl, pParent);
    return view;
}
