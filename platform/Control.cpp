#include "platform/Control.h"

namespace {

[[noreturn]] void Lacks(const char *pTypeName, const char *pProperty) {
    throw NoSuchProperty(std::string(pTypeName) + " doesn't support " + pProperty);
}

} // namespace

const std::string &Control::Text() const {
    Lacks(TypeName(), "Text");
}

void Control::Text(const std::string & /*pText*/) {
    Lacks(TypeName(), "Text");
}

double Control::Left() const {
    Lacks(TypeName(), "Left");
}

void Control::Left(double /*pTwips*/) {
    Lacks(TypeName(), "Left");
}

double Control::Top() const {
    Lacks(TypeName(), "Top");
}

void Control::Top(double /*pTwips*/) {
    Lacks(TypeName(), "Top");
}

double Control::Width() const {
    Lacks(TypeName(), "Width");
}

void Control::Width(double /*pTwips*/) {
    Lacks(TypeName(), "Width");
}

double Control::Height() const {
    Lacks(TypeName(), "Height");
}

void Control::Height(double /*pTwips*/) {
    Lacks(TypeName(), "writing Height");
}

void SizedControl::Left(double pTwips) {
    myLeft = pTwips;
    Touch();
}

void SizedControl::Top(double pTwips) {
    myTop = pTwips;
    Touch();
}

void SizedControl::Width(double pTwips) {
    myWidth = pTwips;
    Touch();
}

void SizedControl::Height(double pTwips) {
    myHeight = pTwips;
    Touch();
}

void SizedControl::Move(double pLeft, double pTop, double pWidth, double pHeight) {
    Left(pLeft);
    Top(pTop);
    Width(pWidth);
    Height(pHeight);
}

void SizedControl::Visible(bool pVisible) {
    myVisible = pVisible;
    Touch();
}

void SizedControl::Enabled(bool pEnabled) {
    myEnabled = pEnabled;
    Touch();
}
