#pragma once
/// The files of a run, in a folder of its own that goes when the program ends. It is made in memory
/// (/dev/shm) where the system has that, so that a disk's moods are not measured; NORVO_BENCH_FOLDER names
/// another place.
#include "bench/StandardTables.h"

#include <string>

namespace Scratch {

/// The full path of pName in the folder.
std::string File(const std::string &pName);

/// The standard table of that size, made when it is asked for first.
const std::string &TableFile(StandardTables::FileForm pForm, int pRows,
                             int pCols = StandardTables::limit.cols);

/// The table of one field of pBytes bytes.
const std::string &LongFieldFile(std::size_t pBytes);

/// The specification for it.
const std::string &SpecificationFile(int pCols = StandardTables::limit.cols);

/// Where a writer writes: a file that isn't there yet.
std::string FreshCopy();

/// Whether the copy holds the bytes of pFile.
bool IsCopyOf(const std::string &pFile);

/// All bytes of a file.
std::string Bytes(const std::string &pFile);

std::int64_t Size(const std::string &pFile);

/// The cells of the limit table, which the shorter tables are the beginning of.
const StandardTables::Cells &LimitCells();

} // namespace Scratch
