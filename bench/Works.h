#pragma once

namespace mavCycEd::bench {

/// Each adds its rows to the table, for the sizes that everything is measured at.
void addDocumentWorks();   ///< loading, comparing and handing back a cycle, without a window
void addCatalogueWorks();  ///< picking an atom, loading a macro text, memory
void addWindowWorks();     ///< what the operator waits for, until it is painted

inline constexpr int sizes[] = {1000, 10000, 100000};

}  // namespace mavCycEd::bench
