#pragma once
/// The columns that a specification asks for, or the fault in it. The form is built from these columns.
#include <cstdint>
#include <string>
#include <vector>

class clsDatFile;

/// One row of a specification: a column of the data, with its list column and its field.
struct SpecColumn {
    std::string heading;
    double percent = 0;           ///< width of the field, in percent of the list's width, as it is written
    std::int16_t listPercent = 0; ///< width of the list column: the same, rounded
    std::int16_t place = 0;       ///< sum of the percents of the fields before this one, rounded at each step
    bool isTextBox = true;        ///< otherwise the field is a combo box
    std::string listFile;         ///< of a combo box, as the specification names it
    std::int16_t mode = 0;        ///< of a combo box, as clsCombo takes it

    /// Where the list file is: as named, else beside the program.
    std::string ListPath(const std::string &pProgramFolder) const;
};

class SpecColumns {
public:
    /// Reads the columns of pSpec, which must be loaded.
    explicit SpecColumns(const clsDatFile &pSpec);

    /// The first fault of the specification, in a sentence for the user. Empty when there is none; only then
    /// is All() complete.
    const std::string &Fault() const { return myFault; }

    const std::vector<SpecColumn> &All() const { return myColumns; }

private:
    std::vector<SpecColumn> myColumns;
    std::string myFault;
};
