#include "forms/Control.h"

#include <utility>

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

void TextField::Text(std::string pText) {
    myText = std::move(pText);
    Touch();
}
