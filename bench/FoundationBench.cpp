// How the containers grow: names entered and found in a table of the size that the program uses,
// and items appended to and looked up in a keyed list.  The time for one name should stay about
// the same from a hundred names to a hundred thousand.

#include <cstdint>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "Alloc.h"
#include "Hash.h"
#include "List.h"

namespace {

constexpr unsigned kBuckets = 511; // as in every table of the program

// Records with names of their own; the texts stay where they are while the records are in use.
struct Records {
  std::vector<std::string> names;
  std::vector<SimpleObjectRec> records;
};

Records MakeRecords(std::int64_t count) {
  Records made;
  made.names.reserve(static_cast<std::size_t>(count));
  made.records.resize(static_cast<std::size_t>(count));
  for (SimpleObjectRec &record : made.records) {
    made.names.push_back("widget_" + std::to_string(made.names.size()));
    record.kind = 0;
    record.name = made.names.back().c_str();
  }
  return made;
}

// One name of `state.range(0)` names is one item of the report.
void CountNames(benchmark::State &state) {
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void HashAddAndFind(benchmark::State &state) {
  Records made = MakeRecords(state.range(0));
  for (auto _ : state) {
    HashTable table = HashCreate(kBuckets, CaseSensitiveKeyFunc, SimpleHashFunc,
                                 CaseSensitiveCompareFunc, nullptr);
    for (SimpleObjectRec &record : made.records) {
      HashAdd(table, &record);
    }
    for (const SimpleObjectRec &record : made.records) {
      benchmark::DoNotOptimize(HashFind(table, record.name));
    }
    HashDestroy(table, false);
  }
  CountNames(state);
}
BENCHMARK(HashAddAndFind)->RangeMultiplier(10)->Range(100, 100'000);

void ListAppendAndFind(benchmark::State &state) {
  Records made = MakeRecords(state.range(0));
  for (auto _ : state) {
    List list = ListCreate(ListCompareCaseInsensitive, nullptr, SimpleListKeyFunc);
    for (SimpleObjectRec &record : made.records) {
      if (ListFindFirst(list, record.name) == nullptr) {
        ListAppendItem(list, &record);
      }
    }
    benchmark::DoNotOptimize(ListLength(list));
    ListDestroy(list);
  }
  CountNames(state);
}
BENCHMARK(ListAppendAndFind)->RangeMultiplier(10)->Range(100, 100'000);

void AllocateAndReset(benchmark::State &state) {
  for (auto _ : state) {
    for (std::int64_t i = 0; i < state.range(0); ++i) {
      benchmark::DoNotOptimize(_MAlloc(sizeof(SimpleObjectRec)));
    }
    AllocReset();
  }
  CountNames(state);
}
BENCHMARK(AllocateAndReset)->RangeMultiplier(10)->Range(100, 100'000);

} // namespace
