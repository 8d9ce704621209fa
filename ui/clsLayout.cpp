#include "ui/clsLayout.h"

#include "platform/Form.h"
#include "text/Numbers.h"

#include <algorithm>
#include <stdexcept>

namespace {

/// An option string, or a control's place, that the layout can't work with.
class Unfit : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

std::int16_t ShareNumber(std::string_view pText) {
    const std::optional<std::int16_t> number = Integer16(Val(pText));
    if (!number) {
        throw Unfit("number beyond 16 bits");
    }
    return *number;
}

std::int32_t WholeTwips(double pTwips) {
    const std::optional<std::int32_t> twips = Integer32(pTwips);
    if (!twips) {
        throw Unfit("place beyond 32 bits");
    }
    return *twips;
}

std::int32_t Growth(float pOuterSize, std::int32_t pMinimum) {
    return std::max(Integer32(static_cast<double>(pOuterSize) - pMinimum).value_or(0), 0);
}

/// One write of a property. A control that doesn't accept it stays as it is in that respect.
template <typename Write> void Attempt(Write pWrite) {
    try {
        pWrite();
    } catch (const NoSuchProperty &) {
        return;
    }
}

void Place(const clsControl &pRecord, std::int32_t pGrowthX, std::int32_t pGrowthY) {
    Control &ctrl = *pRecord.ctrl;
    Attempt([&] { ctrl.Left(pRecord.Left + pRecord.xr * pGrowthX); });
    Attempt([&] { ctrl.Top(pRecord.Top + pRecord.yr * pGrowthY); });
    Attempt([&] { ctrl.Width(pRecord.Width + pRecord.wr * pGrowthX); });
    Attempt([&] { ctrl.Height(pRecord.Height + pRecord.hr * pGrowthY); });
}

} // namespace

void clsLayout::MinWidth(float Twips) {
    myMinWidth = Integer32(Twips).value_or(0);
}

void clsLayout::MinHeight(float Twips) {
    myMinHeight = Integer32(Twips).value_or(0);
}

void clsLayout::SetLayout(Form &frm) {
    myFrm = &frm;
    MinWidth(frm.Width());
    MinHeight(frm.Height());
    myCtrls.clear();
    for (const auto &ctrl : frm.Controls()) {
        if (std::string_view(ctrl->TypeName()) != "Toolbar") {
            AddControl(*ctrl, ctrl->Tag());
        }
    }
}

void clsLayout::AddControl(Control &ctrl, const std::string &pOpts) {
    clsControl record;
    record.ctrl = &ctrl;
    try {
        record.xr = GetOpt("X=", pOpts);
        record.yr = GetOpt("Y=", pOpts);
        record.wr = GetOpt("W=", pOpts);
        record.hr = GetOpt("H=", pOpts);
        record.Left = WholeTwips(ctrl.Left());
        record.Top = WholeTwips(ctrl.Top());
        record.Width = WholeTwips(ctrl.Width());
        record.Height = WholeTwips(ctrl.Height());
    } catch (const std::runtime_error &) {
        return; // Registered whole or not at all.
    }
    myCtrls.push_back(record);
}

double clsLayout::GetOpt(std::string_view pKey, std::string_view pOpts) {
    const std::size_t found = pOpts.find(pKey);
    if (found == std::string_view::npos) {
        return 0;
    }
    std::string_view value = pOpts.substr(found + pKey.size());
    value = value.substr(0, value.find(' '));
    const std::int16_t numerator = ShareNumber(value);
    const std::size_t slash = value.find('/');
    const std::int16_t denominator =
        slash == std::string_view::npos ? std::int16_t{1} : ShareNumber(value.substr(slash + 1));
    if (denominator == 0) {
        throw Unfit("denominator of 0");
    }
    return static_cast<double>(numerator) / denominator;
}

void clsLayout::EnforceMinimum() {
    if (myFrm->WindowState() != Form::stateNormal) {
        return;
    }
    if (myFrm->Width() < MinWidth()) {
        myFrm->Width(MinWidth());
    }
    if (myFrm->Height() < MinHeight()) {
        myFrm->Height(MinHeight());
    }
}

void clsLayout::RedrawLayout() {
    // Writing the form's size raises its Resize, whose handler comes back here in the middle of the pass.
    if (inRedraw || myFrm == nullptr) {
        return;
    }
    inRedraw = true;
    EnforceMinimum();
    std::int32_t dw = 0;
    std::int32_t dh = 0;
    for (const clsControl &record : myCtrls) {
        const Form &parent = record.ctrl->Parent();
        dw = dw == 0 ? Growth(parent.Width(), myMinWidth) : dw;
        dh = dh == 0 ? Growth(parent.Height(), myMinHeight) : dh;
        Place(record, dw, dh);
    }
    inRedraw = false;
}
