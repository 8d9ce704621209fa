#pragma once
/// Keeps the controls of one form in place when the form changes size, each by the option string in its Tag:
/// blank-separated words "X=", "Y=", "W=", "H=" with a whole number or a fraction of two whole numbers, the
/// share of the form's growth by which the control moves or stretches. It knows nothing of the application.
#include "ui/clsControl.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Control;
class Form;

class clsLayout {
public:
    /// Least outer width of the form in twips, which growth is measured from too. Rounded to a whole number,
    /// a half to the even one.
    void MinWidth(float Twips);
    float MinWidth() const { return static_cast<float>(myMinWidth); }
    /// The same for the height.
    void MinHeight(float Twips);
    float MinHeight() const { return static_cast<float>(myMinHeight); }

    /// Takes frm's present size as least size and origin of growth, and registers all its controls by their
    /// Tag, but for those of the class "Toolbar". Places nothing.
    void SetLayout(Form &frm);

    /// Puts a form in its normal state back to the least size, and places all registered controls anew from
    /// their records. Does nothing before SetLayout, and nothing while a pass is running.
    void RedrawLayout();

    /// Registers one control with the option string pOpts. Leaves out, quietly, a control that has no place,
    /// and one whose option string holds a number out of 16 bits or a denominator of 0.
    void AddControl(Control &ctrl, const std::string &pOpts);

private:
    static std::optional<double> GetOpt(std::string_view pKey, std::string_view pOpts);
    void EnforceMinimum();

    Form *myFrm = nullptr;
    std::vector<clsControl> myCtrls;
    std::int32_t myMinWidth = 0;
    std::int32_t myMinHeight = 0;
    bool inRedraw = false;
};
