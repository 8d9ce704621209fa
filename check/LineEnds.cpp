#include "check/LineEnds.h"

#include "check/Findings.h"

void LineEnds::Count(const MeantLine &pLine) {
    myLastEndsInLf = pLine.endsInLf;
    if (pLine.endsInLf) {
        myFirstLf = myLfAlone == 0 ? pLine.number : myFirstLf;
        ++myLfAlone;
    }
}

void LineEnds::Report(Findings &pFindings, std::size_t pLines) const {
    if (myLfAlone == 0) {
        return;
    }
    // The last line may have no end.
    const bool areAll = myLfAlone == pLines || (myLfAlone + 1 == pLines && !myLastEndsInLf);
    const std::string more = myLfAlone > 1 ? " and " + std::to_string(myLfAlone - 1) + " more" : "";
    pFindings.Add(
        Kind::Lost, myFirstLf, Sort::LineEnds,
        areAll
            ? "LF alone ends the file's " + Counted(myLfAlone, "line") + ", so the editor reads them as one"
            : "LF alone ends this line" + more + ", and the editor reads such a line and the next as one");
}
