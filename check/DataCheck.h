#pragma once
/// Compares a table file as it was meant with what the editor makes of it.
#include "check/EditorTable.h"
#include "check/Findings.h"
#include "check/MeantTable.h"
#include "check/WantedColumns.h"

/// Adds what the editor would not show, would change or would refuse to pFindings. pMeant and pEditor are of
/// one file.
void CompareWithEditor(const MeantTable &pMeant, const EditorTable &pEditor, const WantedColumns &pWanted,
                       Findings &pFindings);
