#ifndef KIVUXL_TREECHECK_H
#define KIVUXL_TREECHECK_H

#include <cstdint>

// One pass over the trees of the top-level objects before any output file is opened: it refuses
// what the writers could not walk (rings, trees too deep or too large, an object named like one
// without a name) and reports references to objects that were never defined.  The writers may
// recurse after it.

constexpr int kMaxControlDepth = 1000;          // controls nested deeper than this end the run
constexpr std::int32_t kMaxHierarchy = 1000000; // controls below one top-level object, by paths

// Returns when the trees are sound; otherwise ends the run with an immediate message, status 1.
void TreeCheck();

#endif
