#pragma once
/// The desktop's style with outlines that stay to be seen on black: the Fusion style draws them a shade
/// darker than the ground, and on the black of a high-contrast desktop that is no outline at all.
#include <QProxyStyle>

class ContrastStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    using QProxyStyle::polish;
    /// Sees to it that what is off can still be read where the desktop's colours make it black on black.
    void polish(QPalette &pPalette) override;
    void drawPrimitive(PrimitiveElement pElement, const QStyleOption *pOption, QPainter *pPainter,
                       const QWidget *pWidget) const override;
    void drawControl(ControlElement pElement, const QStyleOption *pOption, QPainter *pPainter,
                     const QWidget *pWidget) const override;
    void drawComplexControl(ComplexControl pControl, const QStyleOptionComplex *pOption, QPainter *pPainter,
                            const QWidget *pWidget) const override;
    int styleHint(StyleHint pHint, const QStyleOption *pOption, const QWidget *pWidget,
                  QStyleHintReturn *pReturn) const override;
};
