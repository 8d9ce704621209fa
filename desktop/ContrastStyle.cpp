#include "desktop/ContrastStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace {

bool IsBlack(const QPalette &pPalette) {
    constexpr int blackest = 16; // of 255
    return pPalette.color(QPalette::Window).lightness() < blackest;
}

/// On a black ground, draws a frame around the control, a thick one if it has the focus.
void DrawFrame(const QStyleOption &pOption, QPainter &pPainter) {
    if (!IsBlack(pOption.palette)) {
        return;
    }
    const bool hasFocus = pOption.state.testFlag(QStyle::State_HasFocus);
    const bool isEnabled = pOption.state.testFlag(QStyle::State_Enabled);
    const auto group = isEnabled ? QPalette::Active : QPalette::Disabled;
    const auto role = hasFocus ? QPalette::Highlight : QPalette::WindowText;
    pPainter.save();
    pPainter.setBrush(Qt::NoBrush);
    pPainter.setPen(QPen(pOption.palette.color(group, role), hasFocus ? 2 : 1));
    pPainter.drawRect(hasFocus ? pOption.rect.adjusted(1, 1, -1, -1) : pOption.rect.adjusted(0, 0, -1, -1));
    pPainter.restore();
}

} // namespace

void ContrastStyle::polish(QPalette &pPalette) {
    QProxyStyle::polish(pPalette);
    if (IsBlack(pPalette)) {
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            pPalette.setColor(QPalette::Disabled, role, Qt::gray);
        }
    }
}

void ContrastStyle::drawPrimitive(PrimitiveElement pElement, const QStyleOption *pOption, QPainter *pPainter,
                                  const QWidget *pWidget) const {
    QProxyStyle::drawPrimitive(pElement, pOption, pPainter, pWidget);
    if (pElement == PE_FrameLineEdit || pElement == PE_PanelButtonCommand || pElement == PE_Frame) {
        DrawFrame(*pOption, *pPainter);
    }
}

void ContrastStyle::drawControl(ControlElement pElement, const QStyleOption *pOption, QPainter *pPainter,
                                const QWidget *pWidget) const {
    QProxyStyle::drawControl(pElement, pOption, pPainter, pWidget);
    if (pElement == CE_HeaderSection) {
        DrawFrame(*pOption, *pPainter);
    }
}

void ContrastStyle::drawComplexControl(ComplexControl pControl, const QStyleOptionComplex *pOption,
                                       QPainter *pPainter, const QWidget *pWidget) const {
    QProxyStyle::drawComplexControl(pControl, pOption, pPainter, pWidget);
    if (pControl == CC_ComboBox) {
        DrawFrame(*pOption, *pPainter);
    }
}

int ContrastStyle::styleHint(StyleHint pHint, const QStyleOption *pOption, const QWidget *pWidget,
                             QStyleHintReturn *pReturn) const {
    if (pHint == SH_Table_GridLineColor && pOption != nullptr && IsBlack(pOption->palette)) {
        return static_cast<int>(QColor(Qt::gray).rgb());
    }
    return QProxyStyle::styleHint(pHint, pOption, pWidget, pReturn);
}
