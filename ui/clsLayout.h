#pragma once
/// Moves and stretches the controls of one form when the form changes size, each by the option string in its
/// Tag. The string holds any of the keys "X=", "Y=", "W=" and "H=", separated by blanks. Each key gives the
/// share of the form's growth by which the control moves or stretches: a whole number, or a fraction such as
/// "25/100". Knows nothing of the application.
#include "text/Numbers.h"
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
    /// The least outer width of the form in twips, from which growth is counted. Rounded to the nearest whole
    /// number, an exact half to the even one.
    void MinWidth(float Twips) { myMinWidth = Integer32(Twips).value_or(0); }
    float MinWidth() const { return static_cast<float>(myMinWidth); }
    /// The same for the height.
    void MinHeight(float Twips) { myMinHeight = Integer32(Twips).value_or(0); }
    float MinHeight() const { return static_cast<float>(myMinHeight); }

    /// Takes the present size of frm as its least size, and registers all its controls by their Tag, except
    /// those of the class "Toolbar". Places nothing.
    void SetLayout(Form &frm);

    /// If the form is in its normal state and smaller than its least size, enlarges it to that. Then places
    /// all registered controls from their records. Does nothing before SetLayout or while another pass is
    /// running.
    void RedrawLayout();

    /// Registers one control with the option string pOpts. Quietly leaves out a control without a place, and
    /// one whose option string holds a number beyond 16 bits or a denominator of 0.
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
