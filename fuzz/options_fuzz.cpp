/// Option strings, on a form that grows and shrinks. The first four bytes are the growth in width and height,
/// the rest is the option string. The control moves by the shares that strtod reads, or stays when its string
/// is unfit. Its neighbour follows its own string, whatever the first one is.
#include "bench/NoDesktop.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/Runtime.h"
#include "fuzz/FuzzSupport.h"
#include "ui/clsLayout.h"

#include <algorithm>
#include <array>

namespace {

constexpr float startWidth = 9000;
constexpr float startHeight = 5000;
constexpr std::array<double, 4> startPlace{120, 360, 1500, 315}; // left, top, width, height

/// The share after pKey: 0 without the key, nothing when it is no share.
std::optional<double> Share(const std::string &pKey, const std::string &pOptions) {
    const std::size_t at = pOptions.find(pKey);
    if (at == std::string::npos) {
        return 0;
    }
    const std::size_t from = at + pKey.size();
    // A whole number counts as a fraction of 1.
    const std::string value = pOptions.substr(from, pOptions.find(' ', from) - from) + "/1";
    const auto numerator = OtherRounded(OtherVal(value.substr(0, value.find('/'))));
    const auto denominator = OtherRounded(OtherVal(value.substr(value.find('/') + 1)));
    const bool isShare = numerator && denominator && *denominator != 0;
    return isShare ? std::optional(*numerator / *denominator) : std::nullopt;
}

/// The control has to be where its options put it after the form has grown, or at its start if they are
/// unfit.
void RequirePlace(const SizedControl &pControl, const std::string &pOptions, double pGrowthX,
                  double pGrowthY) {
    const std::array place{pControl.Left(), pControl.Top(), pControl.Width(), pControl.Height()};
    const std::array growth{pGrowthX, pGrowthY, pGrowthX, pGrowthY};
    const std::array shares{Share("X=", pOptions), Share("Y=", pOptions), Share("W=", pOptions),
                            Share("H=", pOptions)};
    const bool isFit = std::count(shares.begin(), shares.end(), std::nullopt) == 0;
    for (std::size_t i = 0; i < place.size(); ++i) {
        const double moved = isFit ? *shares[i] * growth[i] : 0;
        Require(std::abs(place[i] - startPlace[i] - moved) <= 1e-6 * growth[i], "a control takes its shares");
    }
}

SizedControl &AddLabel(Form &pForm, const char *pName, std::string pTag) {
    auto &label = pForm.Add<Label>(pName);
    label.Move(startPlace[0], startPlace[1], startPlace[2], startPlace[3]);
    label.Tag(std::move(pTag));
    return label;
}

} // namespace

void RequireLaws(std::string_view pBytes) {
    if (pBytes.size() < 4) {
        return;
    }
    const auto number = [&](std::size_t pAt) { return static_cast<unsigned char>(pBytes[pAt]); };
    const float growthX = number(0) * 256.0F + number(1);
    const float growthY = number(2) * 256.0F + number(3);
    const std::string options(pBytes.substr(4));
    const std::string neighboursOptions = "X=1 Y=1/2";

    NoDesktop desktop;
    Runtime runtime(desktop, {}, "");
    Form &form = runtime.NewForm();
    form.Width(startWidth);
    form.Height(startHeight);
    const SizedControl &tagged = AddLabel(form, "tagged", options);
    const SizedControl &neighbour = AddLabel(form, "neighbour", neighboursOptions);
    clsLayout layout;
    layout.SetLayout(form);
    SizedControl &added = AddLabel(form, "added", "");
    layout.AddControl(added, options);
    form.Resize.Connect([&] { layout.RedrawLayout(); });
    const auto requirePlaces = [&](float pGrowthX, float pGrowthY) {
        RequirePlace(tagged, options, pGrowthX, pGrowthY);
        RequirePlace(added, options, pGrowthX, pGrowthY);
        RequirePlace(neighbour, neighboursOptions, pGrowthX, pGrowthY);
    };

    form.Width(startWidth + growthX);
    form.Height(startHeight + growthY);
    requirePlaces(growthX, growthY);

    form.Width(1);
    form.Height(1);
    Require(form.Width() == startWidth && form.Height() == startHeight, "the form keeps its least size");
    requirePlaces(0, 0);
}
