#pragma once
/// Runs the command NorvoCheckDat in a folder of its own, and compares all that it prints and the copy that
/// it writes.
#include "check/modCheck.h"
#include "system/Files.h"
#include "tests/support/Scarcity.h"
#include "tests/support/TemporaryFolder.h"

#include <sstream>

inline std::string Replaced(std::string pText, const std::string &pOld, const std::string &pNew) {
    for (std::size_t at = 0; (at = pText.find(pOld, at)) != std::string::npos; at += pNew.size()) {
        pText.replace(at, pOld.size(), pNew);
    }
    return pText;
}

/// A folder with specifications. "spec" has the columns "Name" and "City", whose list insists on two values.
/// It is the program's folder too.
class CheckFolder : public TemporaryFolder {
public:
    CheckFolder() {
        Write("spec", "2,4\r\n\"Name\",\"50\",\"0\",\"-\"\r\n\"City\",\"40\",\"1\",\"cities\"\r\n");
        Write("cities", "Ulm\r\nBonn\r\n");
        Write("twins", "3,4\r\nA,1,0,-\r\nA,1,0,-\r\nB,1,0,-\r\n");
        Write("wide", "2,4\r\nA,40,1,:\r\nB, 60,0,-\r\n");
        Write("any", "2,4\r\nName,1,0,-\r\nCity,1,0,cities\r\n");
        Write("faulty", "2,4\r\nA,1,0,-\r\nB,1,0\r\n");
    }

    /// Runs the command with pWords, of which those without a slash or colon are files of the folder. Returns
    /// the status and all that was printed, without the folder's name.
    std::string Run(const std::string &pWords) const {
        std::istringstream stream(pWords);
        std::vector<std::string> words;
        for (std::string word; stream >> word;) {
            const bool isFile = word.find_first_of("/-:") != 0;
            words.push_back(isFile ? File(word) : word.substr(word.starts_with(':')));
        }
        std::ostringstream out;
        Scarcity::isCounting = true;
        const int status = modCheck::Main(words, Path(), "1.2.3", out, out);
        Scarcity::isCounting = false;
        return Replaced(std::to_string(status) + '\n' + out.str(), Path() + '/', "");
    }

    /// The bytes of the copy "new"; empty if there is none.
    std::string Copy() const { return Dir(File("new")).empty() ? "" : Read("new"); }
};

struct Case {
    std::string words; ///< without the data file "f", which is the last one
    std::string bytes; ///< "|" is CR LF, "'" a double quote and "@" a byte-order mark
    int status;
    int records;
    int shown;
    std::string findings; ///< without "f:", and why there is no copy
    std::string copy{};   ///< like bytes
};

inline std::string Bytes(const std::string &pText) {
    return Replaced(Replaced(Replaced(pText, "|", "\r\n"), "'", "\""), "@", "\xEF\xBB\xBF");
}

inline std::string Footer(const std::string &pFile, int pRecords, int pShown) {
    return "\n" + pFile + ": " + std::to_string(pRecords) + (pRecords == 1 ? " record" : " records") +
           " in the file, " + std::to_string(pShown) + " in the editor";
}

inline void RequireOutputs(const std::vector<Case> &pCases) {
    for (const auto &[words, bytes, status, records, shown, findings, copy] : pCases) {
        const CheckFolder folder;
        folder.Write("f", Bytes(bytes));
        std::string found = Replaced(folder.Run(words + " f"), Footer("f", records, shown), "");
        found = Replaced(found, Footer("new", records, copy.empty() ? -1 : records), "");
        EXPECT_EQ(Replaced(found, "\nf:", "\n"),
                  std::to_string(status) + '\n' + findings + (findings.empty() ? "" : "\n"))
            << words << ' ' << bytes;
        EXPECT_EQ(folder.Copy(), Bytes(copy)) << words << ' ' << bytes;
    }
}

inline std::string Lines(std::size_t pCount, const std::string &pLine) {
    return Replaced(std::string(pCount, '\x01'), "\x01", pLine);
}
