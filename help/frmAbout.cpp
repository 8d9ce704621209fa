#include "help/frmAbout.h"

#include "forms/Runtime.h"
#include "help/modBrowseTo.h"
#include "text/Numbers.h"

#ifndef NORVO_HOME_PAGE
#define NORVO_HOME_PAGE "https://norvo.example/"
#endif

namespace {

constexpr Colour blue = 0x0000FF;
constexpr Colour grey = 0x808080;
constexpr Colour white = 0xFFFFFF;

/// Adds a control of the design. Sizes are in twips.
template <typename Kind>
Kind &Place(Form &pForm, const char *pName, double pLeft, double pTop, double pWidth, double pHeight) {
    auto &control = pForm.Add<Kind>(pName);
    control.Move(pLeft, pTop, pWidth, pHeight);
    return control;
}

Label &PlaceLabel(Form &pForm, const char *pName, double pLeft, double pTop, double pWidth, double pHeight,
                  int pTabIndex, const char *pCaption = "") {
    auto &label = Place<Label>(pForm, pName, pLeft, pTop, pWidth, pHeight);
    label.TabIndex(pTabIndex);
    label.Caption(pCaption);
    return label;
}

/// Adds a line from (pLeft, pTop) to the right edge, pPixels thick.
void PlaceLine(Form &pForm, const char *pName, double pLeft, double pTop, int pPixels, Colour pColour) {
    constexpr double rightEnd = 5654;
    Place<Line>(pForm, pName, pLeft, pTop, rightEnd - pLeft, pPixels * twipsPerPixel).BorderColor(pColour);
}

} // namespace

frmAbout::frmAbout(Runtime &pRuntime)
    : myRuntime(pRuntime), myForm(pRuntime.NewForm()),
      cmdOK(Place<CommandButton>(myForm, "cmdOK", 4245, 2625, 1260, 345)),
      lblComments(PlaceLabel(myForm, "lblComments", 960, 1170, 4485, 1005, 2)),
      lblCopyright(PlaceLabel(myForm, "lblCopyright", 255, 2625, 1590, 345, 3)),
      lblTitle(PlaceLabel(myForm, "lblTitle", 1680, 240, 3165, 240, 4)),
      lblVersion(PlaceLabel(myForm, "lblVersion", 1680, 480, 3165, 225, 5)) {
    myForm.Border(Form::BorderStyle::FixedDialog);
    myForm.ClientSize(5730, 3090);
    cmdOK.Caption("OK");
    cmdOK.TabIndex(0);
    cmdOK.Default(true);
    cmdOK.Cancel(true);
    Place<PictureBox>(myForm, "picIcon", 240, 240, 480, 480).TabIndex(1);
    PlaceLabel(myForm, "Label1", 960, 240, 615, 255, 6, "Product:");
    PlaceLabel(myForm, "Label2", 960, 480, 615, 225, 7, "Version:");
    // Grey above white looks like one etched line.
    PlaceLine(myForm, "Line1(1)", 90, 2445, 1, grey);
    PlaceLine(myForm, "Line1(0)", 105, 2460, 2, white);
    lblCopyright.IsLink(true);
    lblCopyright.ForeColor(blue);

    myForm.LoadEvent.Connect([this] { Form_Load(); });
    lblCopyright.Click.Connect([this] { lblCopyright_Click(); });
    cmdOK.Click.Connect([this] { cmdOK_Click(); });
}

void frmAbout::Form_Load() {
    const AppRecord &app = myRuntime.App();
    myForm.Caption("About " + app.FileDescription);
    lblTitle.Caption(app.ProductName);
    lblVersion.Caption(std::to_string(app.Major) + "." + FormatDigits(app.Minor, 2) + "." +
                       FormatDigits(app.Revision, 4));
    lblComments.Caption(app.Comments);
    lblCopyright.Caption(app.LegalCopyright);
    lblCopyright.Tag(NORVO_HOME_PAGE);
}

void frmAbout::lblCopyright_Click() {
    modBrowseTo::BrowseTo(myRuntime, lblCopyright.Tag());
}

void frmAbout::cmdOK_Click() {
    myForm.Unload();
}
