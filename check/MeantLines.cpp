#include "check/MeantLines.h"

#include "check/MeantCells.h"

#include <limits>
#include <utility>

/// Reads the next piece. Its text is valid until the next read.
bool MeantLines::Read(Piece &pPiece) {
    pPiece.startsEditorLine = !myHasRest;
    // After an LF at the very end of the file there is no further line.
    if ((!myHasRest || myRest.empty()) && myFile.AtEnd()) {
        return false;
    }
    if (!myHasRest) {
        myRest = myFile.LineInput();
        ++myEditorLines;
    }
    const std::size_t length = myRest.find('\n');
    myHasRest = length != std::string_view::npos;
    pPiece.text = myRest.substr(0, length);
    pPiece.number = ++myNumber;
    pPiece.editorLine = myEditorLines - 1;
    pPiece.endsEditorLine = !myHasRest;
    myRest.remove_prefix(myHasRest ? length + 1 : myRest.size());
    return true;
}

void MeantLines::Serve(const Piece &pFirst, const Piece &pLast) {
    const bool isEditorLine =
        pFirst.startsEditorLine && pLast.endsEditorLine && pFirst.editorLine == pLast.editorLine;
    myLine.number = pFirst.number;
    myLine.editorLine = isEditorLine ? std::optional(pFirst.editorLine) : std::nullopt;
    myLine.endsInLf = !pLast.endsEditorLine;
}

bool MeantLines::Next() {
    if (!myAhead.empty()) {
        myText = std::move(myAhead.front().text);
        myPiece = myAhead.front().piece;
        myPiece.text = myText;
        myAhead.pop_front();
    } else if (!Read(myPiece)) {
        return false;
    }
    ++myCount;
    myLine.text = myPiece.text;
    Serve(myPiece, myPiece);
    return true;
}

/// Whether there is a piece at pPlace of myAhead. Reads it if it is the next one.
bool MeantLines::IsKept(std::size_t pPlace) {
    Piece piece;
    if (pPlace == myAhead.size() && Read(piece)) {
        Kept kept{std::string(piece.text), piece};
        kept.piece.text = {};
        myAhead.push_back(std::move(kept));
    }
    return pPlace < myAhead.size();
}

bool MeantLines::Join(MeantCells &pCells) {
    if (myPiece.number < myNoCloseUpTo) {
        return false;
    }
    myText = std::string(myPiece.text); // Reading on would move it.
    myLine.text = myPiece.text = myText;
    std::string joined = myText;
    Piece last = myPiece;
    std::size_t taken = 0;
    while (pCells.IsOpen()) {
        if (!IsKept(taken)) {
            myNoCloseUpTo = std::numeric_limits<std::size_t>::max();
            return false;
        }
        const std::size_t from = joined.size();
        joined += last.endsEditorLine ? '\r' : '\n';
        joined += myAhead[taken].text;
        last = myAhead[taken].piece;
        ++taken;
        pCells.Take(std::string_view(joined).substr(from));
    }
    if (pCells.HasTextAfterQuote()) {
        myNoCloseUpTo = last.number;
        return false;
    }
    myAhead.erase(myAhead.begin(), myAhead.begin() + static_cast<std::ptrdiff_t>(taken));
    myText = std::move(joined);
    myLine.text = myText;
    Serve(myPiece, last);
    return true;
}
