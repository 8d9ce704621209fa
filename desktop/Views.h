#pragma once
/// The makers of views, by kind of control. Each makes its view of pControl inside pParent; null if pControl
/// is of another kind.
#include "desktop/ControlView.h"

using ViewMaker = std::unique_ptr<ControlView>(Acts &pActs, ::Control &pControl, QWidget &pParent);

// Functions, declared by their type.
ViewMaker MakeButtonView, MakeLabelView, MakePictureView, MakeLineView;

template <typename View, typename Kind>
std::unique_ptr<ControlView> MakeViewOf(Acts &pActs, ::Control &pControl, QWidget &pParent) {
    auto *control = dynamic_cast<Kind *>(&pControl);
    return control == nullptr ? nullptr : std::make_unique<View>(pActs, *control, pParent);
}
