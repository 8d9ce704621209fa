#pragma once
/// The desktop's style with visible outlines on black. The Fusion style draws outlines a shade darker than
/// the ground, so on the black of a high-contrast desktop they would vanish.
#include <QProxyStyle>

class ContrastStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    using QProxyStyle::polish;
    /// Keeps disabled text readable: the desktop's colours may make it black on black.
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
