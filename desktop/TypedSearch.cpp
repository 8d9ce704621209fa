#include "desktop/TypedSearch.h"

#include "desktop/TextCodec.h"

#include <QApplication>

int TypedSearch::Typed(const QString &pText, const ListView &pList) {
    const bool goesOn =
        mySinceLast.isValid() && mySinceLast.elapsed() <= QApplication::keyboardInputInterval();
    mySinceLast.start();
    const bool isSameAgain = goesOn && mySoFar.compare(pText, Qt::CaseInsensitive) == 0;
    if (!goesOn) {
        mySoFar = pText;
    } else if (!isSameAgain) {
        mySoFar += pText;
    }
    if (mySoFar.trimmed().isEmpty()) {
        mySinceLast.invalidate(); // The space bar alone begins no search.
        return 0;
    }
    // A longer text may still fit the current item.
    const bool isNarrowed = goesOn && !isSameAgain;
    const int from = pList.CurrentIndex() + (isNarrowed ? 0 : 1);
    const int found = pList.FindItem(FromQt(mySoFar), std::max(from, 1));
    return isNarrowed && found == pList.SelectedIndex() ? 0 : found;
}
