#include <benchmark/benchmark.h>

#include <exception>
#include <fstream>
#include <iostream>
#include <string>

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
    benchmark::Initialize(&argc, argv);
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
