#include "desktop/WholeText.h"

#include "desktop/TextCodec.h"

#include <QToolTip>

void ShowWholeText(const QHelpEvent &pEvent, QWidget &pWidget, std::string_view pText) {
    constexpr int mostInTip = 4000; // in UTF-16 units, so that the tip fits on the screen
    QString tip;
    if (!pText.empty()) {
        const QString text = ToQt(pText, mostInTip + 1);
        const QString shown = text.size() > mostInTip ? text.left(mostInTip) + QChar(0x2026) : text;
        // As rich text, since Qt breaks the lines of no other, and would take some plain texts for rich ones.
        tip = QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(shown.toHtmlEscaped());
    }
    QToolTip::showText(pEvent.globalPos(), tip, &pWidget);
}
