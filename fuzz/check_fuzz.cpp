/// The checker and its copies, on any data file and any specification. A file said to lose nothing loads
/// whole. A copy loads with exactly the cells that were reported, and the checker finds nothing more in it.
/// The first byte chooses the form and whether there is a specification.
#include "check/CleanCopy.h"
#include "check/DataCheck.h"
#include "check/SpecCheck.h"
#include "data/SpecColumns.h"
#include "fuzz/FuzzSupport.h"
#include "system/Files.h"

namespace {

/// A file as it was meant, with what the checker has to say of it.
struct Checked {
    Checked(const std::string &pFile, std::int16_t pFmt, const WantedColumns &pWanted)
        : editor(pFile, pFmt, TitlesOf(pWanted)), meant(editor, pWanted), findings(pFile) {
        CompareWithEditor(meant, editor, pWanted, findings);
    }
    EditorTable editor;
    MeantTable meant;
    Findings findings;
};

std::vector<Words> RowsOf(const CleanCopy &pCopy) {
    std::vector<Words> rows;
    std::transform(pCopy.Rows().begin(), pCopy.Rows().end(), std::back_inserter(rows), WordsOf);
    return rows;
}

/// The records that a copy of a CSV file of these lines would have, all of them ended by pLineEnd.
std::vector<Words> RowsOf(std::string_view pBytes, const char *pLineEnd, std::int16_t pFmt,
                          const WantedColumns &pWanted) {
    static TableProbe probe;
    std::string bytes;
    for (const char character : pBytes) {
        bytes += character == '\n' ? std::string(pLineEnd) : std::string(character != '\r', character);
    }
    probe.Load(pFmt, bytes);
    const Checked checked(probe.table.FileName(), pFmt, pWanted);
    return RowsOf(CleanCopy(checked.meant, pFmt));
}

void RequireWholeCopy(CleanCopy &pCopy, std::int16_t pFmt, const WantedColumns &pWanted) {
    static TableProbe probe;
    static const std::string file = OwnFile();
    pCopy.Write(file);
    Require(pCopy.Fault().empty() != Dir(file).empty(), "there is a copy or a fault");
    Require(pCopy.Fault() != "it did not come back as it was written", "a copy comes back as it was written");
    if (!pCopy.Fault().empty()) {
        return;
    }
    Require(!probe.Load(pFmt, BytesOf(file)) && probe.table.Fault().empty(), "a copy loads whole");
    Require(probe.Cells() == RowsOf(pCopy), "a copy has the cells that were reported");
    const Findings findings = Checked(file, pFmt, pWanted).findings;
    Require(findings.Of(Kind::Lost) == 0, "a copy loses nothing");
    Require(findings.Of(Kind::Changed) == findings.Of(Fault::Title), "only titles of a copy would change");
    std::remove(file.c_str());
}

} // namespace

void RequireLaws(std::string_view pBytes) {
    static TableProbe probe;
    const unsigned choice = pBytes.empty() ? 0 : static_cast<unsigned char>(pBytes[0]);
    const auto fmt = static_cast<std::int16_t>(choice % 3);
    const WantedColumns wanted =
        choice % 6 < 3 ? WantedColumns{} : WantedColumns{{"a", {"x", "y"}}, {"b", {}}};
    const bool endsProgram = probe.Load(fmt, pBytes.substr(pBytes.empty() ? 0 : 1)).has_value();
    const Checked checked(probe.table.FileName(), fmt, wanted);
    if (checked.findings.Of(Kind::Lost) == 0) {
        Require(!endsProgram && probe.table.Fault().empty(), "a file that loses nothing loads");
        Require(std::cmp_equal(probe.table.Rows(), checked.meant.records),
                "a file that loses nothing loads whole");
    }
    CleanCopy copy(checked.meant, fmt);
    RequireWholeCopy(copy, fmt, wanted);
    Require(fmt == clsDatFile::fmtDat ||
                RowsOf(pBytes, "\n", fmt, wanted) == RowsOf(pBytes, "\r\n", fmt, wanted),
            "a copy is the same whatever ends the lines");
    const SpecCheck spec(probe.table.FileName(), "/");
    Require(fmt != clsDatFile::fmtDat || spec.IsLossy() || SpecColumns(probe.table).Fault().empty(),
            "a specification that loses nothing is taken");
}
