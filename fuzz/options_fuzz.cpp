/// Option strings, on a form that grows and shrinks: the first four bytes are the growth in width and height,
/// the rest is the option string. The control goes where strtod says, or stays when its string is unfit;
/// its neighbour goes its own way whatever the string is.
#include "fuzz/FuzzSupport.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "ui/clsLayout.h"

#include <array>
#include <cmath>

namespace {

struct Place {
    double left, top, width, height;
    friend bool operator==(const Place &, const Place &) = default;
};

constexpr Place start{120, 360, 1500, 315};

std::optional<double> WholeShare(std::string_view pText) {
    return OtherRounded(OtherVal(pText), -32768, 32767);
}

/// The share behind pKey; nothing when it is none.
std::optional<double> Share(const std::string &pKey, const std::string &pOptions) {
    const std::size_t at = pOptions.find(pKey);
    if (at == std::string::npos) {
        return 0;
    }
    const std::size_t from = at + pKey.size();
    const std::string value =
        pOptions.substr(from, std::min(pOptions.find(' ', from), pOptions.size()) - from);
    const std::size_t slash = value.find('/');
    const auto numerator = WholeShare(value.substr(0, slash));
    const auto denominator = slash == std::string::npos ? 1 : WholeShare(value.substr(slash + 1));
    return numerator && denominator && *denominator != 0 ? std::optional(*numerator / *denominator)
                                                         : std::nullopt;
}

/// Where the control belongs after a growth of the form.
Place Wanted(const std::string &pOptions, int pGrowthX, int pGrowthY) {
    const auto x = Share("X=", pOptions);
    const auto y = Share("Y=", pOptions);
    const auto w = Share("W=", pOptions);
    const auto h = Share("H=", pOptions);
    if (!x || !y || !w || !h) {
        return start;
    }
    return {start.left + *x * pGrowthX, start.top + *y * pGrowthY, start.width + *w * pGrowthX,
            start.height + *h * pGrowthY};
}

bool IsNear(const Place &pOne, const Place &pOther) {
    const auto near = [](double pFirst, double pSecond) { return std::abs(pFirst - pSecond) < 0.001; };
    return near(pOne.left, pOther.left) && near(pOne.top, pOther.top) && near(pOne.width, pOther.width) &&
           near(pOne.height, pOther.height);
}

Place PlaceOf(const SizedControl &pControl) {
    return {pControl.Left(), pControl.Top(), pControl.Width(), pControl.Height()};
}

Label &AddLabel(Form &pForm, const std::string &pName, const std::string &pTag) {
    auto &label = pForm.Add<Label>(pName);
    label.Move(start.left, start.top, start.width, start.height);
    label.Tag(pTag);
    return label;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *pBytes, std::size_t pSize) {
    if (pSize < 4) {
        return 0;
    }
    const int growthX = pBytes[0] * 256 + pBytes[1];
    const int growthY = pBytes[2] * 256 + pBytes[3];
    const std::string options(Text(pBytes + 4, pSize - 4));

    FuzzDesktop desktop;
    Runtime runtime(desktop, {}, "");
    Form &form = runtime.NewForm("form");
    form.Width(9000);
    form.Height(5000);
    const Label &tagged = AddLabel(form, "tagged", options);
    const Label &neighbour = AddLabel(form, "neighbour", "X=1 Y=1/2");
    clsLayout layout;
    layout.SetLayout(form);
    Label &added = AddLabel(form, "added", "");
    layout.AddControl(added, options);
    form.Resize.Connect([&] { layout.RedrawLayout(); });

    form.Width(9000.0F + static_cast<float>(growthX));
    form.Height(5000.0F + static_cast<float>(growthY));
    Require(IsNear(PlaceOf(tagged), Wanted(options, growthX, growthY)), "the control takes its shares");
    Require(PlaceOf(added) == PlaceOf(tagged), "a control that is added later goes the same way");
    Require(IsNear(PlaceOf(neighbour), Wanted("X=1 Y=1/2", growthX, growthY)),
            "the neighbour is not touched");

    form.Width(1);
    form.Height(1);
    Require(form.Width() == 9000 && form.Height() == 5000, "the form keeps its least size");
    for (const Label *label : std::array{&tagged, &neighbour, static_cast<const Label *>(&added)}) {
        Require(PlaceOf(*label) == start, "shrinking back restores every place");
    }
    return 0;
}
