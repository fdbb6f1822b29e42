#include <benchmark/benchmark.h>

#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "Table.h"
#include "Works.h"
#ifdef MAVCYCED_WITH_QT
#include <QApplication>
#endif

// cyced-bench [JSON FILE] [options of Google Benchmark]: prints the table and writes it as JSON.
int main(int argc, char** argv) {
  using namespace mavCycEd::bench;
  try {
    std::string json;
    if (argc > 1 && argv[1][0] != '-') json = argv[1];
#ifdef MAVCYCED_WITH_QT
    const QApplication application(argc, argv);
    addWindowWorks();
#endif
    addDocumentWorks();
    addCatalogueWorks();
    // The repetitions of all rows take turns, so that a slow minute of the machine hits none of them alone.
    std::string interleaving("--benchmark_enable_random_interleaving=true");
    std::vector<char*> options{argv[0], interleaving.data()};
    options.insert(options.end(), argv + 1, argv + argc);
    int optionCount = static_cast<int>(options.size());
    benchmark::Initialize(&optionCount, options.data());
    const std::vector<Result> results = runComparisons();
    writeTable(std::cout, results);
    if (json.empty()) return 0;
    std::ofstream file(json);
    writeJson(file, results);
    if (file.close(), file) return 0;
    std::cerr << "The results cannot be written: " << json << '\n';
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
  }
  return 1;
}
