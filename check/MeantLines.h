#pragma once
/// The lines of a file as their writer meant them: CR LF, LF and CR all end a line, and they don't inside
/// quotes. Each says whether the editor takes it for a line too.
#include "system/Files.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

class MeantCells;

struct MeantLine {
    std::string_view text;  ///< without its end; a joined one has breaks in it, CR LF as CR
    std::size_t number = 0; ///< of its first line, from 1
    std::optional<std::size_t>
        editorLine;        ///< the number, from 0, if the editor takes exactly this for a line
    bool endsInLf = false; ///< in LF alone
};

class MeantLines {
public:
    explicit MeantLines(const std::string &pFile) : myFile(pFile) {}

    /// Goes to the next line, by line ends of any kind. False when there is none.
    bool Next();
    /// The line. It stays valid until the next one is asked for.
    const MeantLine &Line() const { return myLine; }

    /// pCells has taken the line and is open. Joins the next lines to it until the quote closes. False, and
    /// the line stays as it is, if it never does, or if text follows the closing quote.
    bool Join(MeantCells &pCells);

    /// How many lines there have been. A joined line counts as one.
    std::size_t Count() const { return myCount; }
    /// Why the file can't be read to its end. Empty if it can.
    std::string_view Fault() const { return myFile.Fault(); }

private:
    /// What stands between two line ends of any kind.
    struct Piece {
        std::string_view text;
        std::size_t number = 0;
        std::size_t editorLine = 0;
        bool startsEditorLine = false;
        bool endsEditorLine = false;
    };
    struct Kept {
        std::string text;
        Piece piece; ///< its text is not set
    };

    bool Read(Piece &pPiece);
    bool IsKept(std::size_t pPlace);
    void Serve(const Piece &pFirst, const Piece &pLast);

    TextInput myFile;
    std::string_view myRest; ///< of the editor's line, after an LF
    bool myHasRest = false;
    std::size_t myEditorLines = 0;
    std::size_t myNumber = 0;

    std::deque<Kept> myAhead; ///< read in search of a closing quote
    std::string myText;       ///< of the line, when it isn't in the file's buffer
    Piece myPiece;
    MeantLine myLine;
    std::size_t myCount = 0;
    /// A quote that is open at the start of a line, up to this one, doesn't close well. Without it each of
    /// many open quotes would cost a search to the end of the file.
    std::size_t myNoCloseUpTo = 0;
};
