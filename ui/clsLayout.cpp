#include "ui/clsLayout.h"

#include "forms/Form.h"
#include "text/Numbers.h"

#include <algorithm>

namespace {

std::int32_t Growth(float pOuterSize, std::int32_t pMinimum) {
    return std::max(Integer32(static_cast<double>(pOuterSize) - pMinimum).value_or(0), 0);
}

void Place(const clsControl &pRecord, std::int32_t pGrowthX, std::int32_t pGrowthY) {
    SizedControl &ctrl = *pRecord.ctrl;
    ctrl.Left(pRecord.Left + pRecord.xr * pGrowthX);
    ctrl.Top(pRecord.Top + pRecord.yr * pGrowthY);
    ctrl.Width(pRecord.Width + pRecord.wr * pGrowthX);
    ctrl.Height(pRecord.Height + pRecord.hr * pGrowthY);
}

} // namespace

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
    auto *const sized = dynamic_cast<SizedControl *>(&ctrl);
    if (sized == nullptr) {
        return;
    }
    const auto xr = GetOpt("X=", pOpts);
    const auto yr = GetOpt("Y=", pOpts);
    const auto wr = GetOpt("W=", pOpts);
    const auto hr = GetOpt("H=", pOpts);
    const auto left = Integer32(sized->Left());
    const auto top = Integer32(sized->Top());
    const auto width = Integer32(sized->Width());
    const auto height = Integer32(sized->Height());
    if (xr && yr && wr && hr && left && top && width && height) {
        myCtrls.push_back({*left, *top, *width, *height, *xr, *yr, *wr, *hr, sized});
    }
}

std::optional<double> clsLayout::GetOpt(std::string_view pKey, std::string_view pOpts) {
    const std::size_t found = pOpts.find(pKey);
    if (found == std::string_view::npos) {
        return 0;
    }
    std::string_view value = pOpts.substr(found + pKey.size());
    value = value.substr(0, value.find(' '));
    const std::size_t slash = value.find('/');
    const bool isFraction = slash != std::string_view::npos;
    const auto numerator = Integer16(Val(value));
    const auto denominator = Integer16(isFraction ? Val(value.substr(slash + 1)) : 1);
    const bool isShare = numerator && denominator && *denominator != 0;
    return isShare ? std::optional(static_cast<double>(*numerator) / *denominator) : std::nullopt;
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
    // Setting the form's size raises Resize, whose handler calls this function in the middle of the pass.
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
