#pragma once
/// The lines of a file as their writer meant them: CR LF, LF and CR all end a line. Each says whether the
/// editor takes it for a line too. A line can be joined with the next ones, which is for whoever knows of
/// quotes. Of the file only the line is in memory: to touch memory for all of it takes longer than to look at
/// it.
#include "system/System.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

class MeantLines {
public:
    explicit MeantLines(const std::string &pFile) : myFile(pFile) {}

    /// Goes to the next line. False when there is none.
    bool Next();
    /// Adds the next line to this one, with the line end between them. False when there is none. Text moves.
    bool Join();
    /// Goes back to the line as it was before any was joined.
    void Unjoin();

    /// The line without its end.
    std::string_view Text() const { return Window().substr(0, myAt.end); }
    /// The number of its first line, and the number of its last, from 1.
    std::size_t Number() const { return myUnjoined.lines; }
    std::size_t LastNumber() const { return myAt.lines; }
    /// Whether it ends in LF alone.
    bool EndsInLf() const { return myAt.endsInLf; }
    /// The number that the editor gives to exactly this line, from 0; null if it ends lines elsewhere.
    std::optional<std::size_t> EditorLine() const;

    /// Why the file can't be read to its end. Empty if it can.
    std::string_view Fault() const { return myFile.Fault(); }

private:
    /// How far the lines have been passed. Places count from the start of the line.
    struct Passed {
        std::size_t end = 0;  ///< of the line's text
        std::size_t next = 0; ///< where the next line begins
        std::size_t lines = 0;
        std::size_t editorLines = 0;
        bool endsInLf = false;
    };

    /// The bytes in memory, from the start of the line.
    std::string_view Window() const { return std::string_view(myBytes).substr(myFrom); }
    bool ReadMore();
    std::size_t LineEnd();

    os::FileReader myFile;
    std::string myBytes;
    std::size_t myFrom = 0;
    Passed myAt;
    Passed myUnjoined;
    std::optional<std::size_t> myEditorLine; ///< the one that begins where the line does
    std::size_t myLf = 0; ///< the next LF, or up to where there is none, so that no byte is searched twice
};
