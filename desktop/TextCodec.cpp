#include "desktop/TextCodec.h"

#include "text/Text.h"

namespace {

constexpr char16_t byteBase = 0xDC00;

} // namespace

QString ToQt(std::string_view pText, int pMostUnits) {
    QString text;
    text.reserve(static_cast<qsizetype>(std::min(pText.size(), static_cast<std::size_t>(pMostUnits))));
    for (std::size_t at = 0; at < pText.size();) {
        const CodePoint character = CodePointAt(pText, at);
        const int units = QChar::requiresSurrogates(character.value) ? 2 : 1;
        if (text.size() + units > pMostUnits) {
            break;
        }
        if (!character.isValid) {
            text += QChar(static_cast<char16_t>(byteBase + character.value));
        } else if (units == 2) {
            text += QChar(QChar::highSurrogate(character.value));
            text += QChar(QChar::lowSurrogate(character.value));
        } else {
            text += QChar(static_cast<char16_t>(character.value));
        }
        at += character.length;
    }
    return text;
}

std::string FromQt(const QString &pText) {
    std::string text;
    text.reserve(static_cast<std::size_t>(pText.size()));
    for (qsizetype at = 0; at < pText.size(); ++at) {
        const char16_t unit = pText[at].unicode();
        const bool isPair =
            QChar::isHighSurrogate(unit) && at + 1 < pText.size() && pText[at + 1].isLowSurrogate();
        if (isPair) {
            AppendUtf8(text, QChar::surrogateToUcs4(unit, pText[at + 1].unicode()));
            ++at;
        } else if (unit >= byteBase + 0x80 && unit <= byteBase + 0xFF) {
            text += static_cast<char>(unit - byteBase);
        } else {
            AppendUtf8(text,
                       QChar::isSurrogate(unit) ? char32_t{QChar::ReplacementCharacter} : char32_t{unit});
        }
    }
    return text;
}

QString ToQtLine(std::string_view pText, int pMostUnits) {
    QString text = ToQt(pText, pMostUnits);
    text.replace(u'\n', u' ').replace(u'\r', u' ');
    return text;
}

QString ToQtTitle(std::string_view pText) {
    if (pText.empty()) {
        return QStringLiteral(" "); // For an empty title Qt shows the name of the program's file.
    }
    // Written twice, the mark stands for itself.
    return ToQt(pText).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}
