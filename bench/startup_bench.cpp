// SPDX-License-Identifier: GPL-3.0-or-later
// Time to load an address book at program start, with and without the animated progress box.

#include <benchmark/benchmark.h>

#include "bench/bench_folder.h"
#include "contacts/address_book.h"
#include "ui/waiting/progress_box.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

void load(benchmark::State& state, Progress& progress) {
  const auto total = static_cast<int>(state.range(0));
  const BenchFolder& folder = BenchFolder::withContacts(total);
  if (!folder.problem().isEmpty()) return state.SkipWithError(qPrintable(folder.problem()));
  SleepingLockWaiter waiter;
  for (auto step : state) {
    ItemIndexCache cache;
    ItemDatabase database(cache, waiter);
    AddressBook book(folder.path(), database);
    int errors = 0;
    const auto countError = [&errors](const StoreError& /*error*/) { ++errors; };
    progress.show(u"Loading Contacts from Database..."_s);
    const bool isLoaded = book.loadAll(progress, countError);
    progress.hide();
    const bool isComplete = isLoaded && errors == 0 && book.contacts().size() == std::size_t(total);
    state.PauseTiming();
    book.clear();
    state.ResumeTiming();
    if (!isComplete) return state.SkipWithError("the address book was not read completely");
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void loadWithoutBox(benchmark::State& state) {
  NoProgress progress;
  load(state, progress);
}
BENCHMARK(loadWithoutBox)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

void loadUnderProgressBox(benchmark::State& state) {
  ProgressBox progress;
  load(state, progress);
}
BENCHMARK(loadUnderProgressBox)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace parlexo
