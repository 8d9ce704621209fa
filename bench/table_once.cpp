/// table_once load FILE: loads a .dat file and ends.
/// table_once save FILE COPY: loads it, saves it as COPY and ends.
/// One run of it is what an instruction counter counts, so it does nothing else.
#include "bench/NoDesktop.h"
#include "data/clsDatFile.h"
#include "platform/Runtime.h"

#include <string_view>

namespace {

bool IsGood(const clsDatFile &pTable) {
    if (!pTable.Fault().empty()) {
        std::fprintf(stderr, "table_once: %s\n", pTable.Fault().c_str());
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv) {
    const std::string_view act = argc > 1 ? argv[1] : "";
    const bool isSave = act == "save" && argc == 4;
    if (!isSave && (act != "load" || argc != 3)) {
        std::fputs("Usage: table_once load FILE | save FILE COPY\n", stderr);
        return 1;
    }
    NoDesktop desktop;
    const Runtime runtime(desktop, {}, "");
    clsDatFile table(runtime);
    table.FileName(argv[2]);
    table.Load();
    if (IsGood(table) && isSave) {
        table.FileName(argv[3]);
        table.Save();
    }
    return IsGood(table) ? 0 : 1;
}
