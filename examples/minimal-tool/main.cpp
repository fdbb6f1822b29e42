// Cycles without a window: checks a cycle (a cycle document of any version, or a macro text) against its instrument,
// and writes it in the newest format on standard output.
//   minimal-tool CONFIGURATION CATALOGUE CYCLE
// It says on standard error what is wrong, where, and what to do, and ends with 1 when anything is.

#include <mavCycEd/Catalogue.h>
#include <mavCycEd/Configuration.h>
#include <mavCycEd/CycleCheck.h>
#include <mavCycEd/CycleReading.h>
#include <mavCycEd/CycleWriting.h>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// Says what is wrong and remembers that something is.
class Failures {
 public:
  void tell(std::string_view sentence) {
    std::cerr << sentence << '\n';
    any_ = true;
  }
  /// The faults of a file, in the form that editors jump to: name, line, column.
  void tell(std::string_view file, const std::vector<mavCycEd::TextFault>& faults, std::string_view advice) {
    for (const mavCycEd::TextFault& fault : faults) {
      std::cerr << file << ':' << fault.line << ':' << fault.column << ": " << fault.message << ' ' << advice << '\n';
      any_ = true;
    }
  }
  bool any() const { return any_; }

 private:
  bool any_ = false;
};

std::optional<std::string> contentOf(const std::string& name, Failures& failures) {
  std::ifstream file(name, std::ios::binary);
  std::string content;
  std::array<char, 65536> buffer{};
  while (file.read(buffer.data(), buffer.size()), file.gcount() > 0) {
    content.append(buffer.data(), static_cast<std::size_t>(file.gcount()));
  }
  if (file.is_open() && !file.bad()) return content;
  failures.tell(name + ": The file cannot be read. Check its name, and whether you may read it.");
  return std::nullopt;
}

void check(const mavCycEd::Cycle& cycle, const mavCycEd::Catalogue& catalogue, Failures& failures) {
  for (const mavCycEd::CycleFault& fault : checkCycle(cycle, catalogue)) {
    const std::string line = "Line " + std::to_string(fault.line + 1) + ", " + cycle.lines[fault.line].name + ": ";
    switch (fault.kind) {
      case mavCycEd::CycleFault::Kind::Value: failures.tell(line + fault.message); break;
      case mavCycEd::CycleFault::Kind::UnknownAtom:
        failures.tell(line + fault.message + " Take the catalogue of the cycle's instrument, or change the line.");
        break;
      case mavCycEd::CycleFault::Kind::AtomDefinition:
        failures.tell(line + fault.message + " Mend it in the catalogue or the configuration.");
        break;
    }
  }
}

void write(const mavCycEd::ReadCycle& read, Failures& failures) {
  const mavCycEd::WrittenCycle written = writeCycleDocument(read.cycle, read.facts);
  if (written.fault) {
    failures.tell(written.fault->message + " Change it in the editor.");
    return;
  }
  std::cout << written.text << std::flush;
  if (!std::cout) failures.tell("The cycle could not be written to standard output. Check where it leads.");
}

void run(const std::string& configurationFile, const std::string& catalogueFile, const std::string& cycleFile,
         Failures& failures) {
  const auto configurationText = contentOf(configurationFile, failures);
  const auto catalogueText = contentOf(catalogueFile, failures);
  const auto cycleText = contentOf(cycleFile, failures);
  if (failures.any()) return;

  const auto configuration = mavCycEd::Configuration::read(*configurationText);
  failures.tell(configurationFile, configuration.faults, "Mend the file, or name another one.");
  const auto catalogue =
      mavCycEd::Catalogue::read(*catalogueText, configuration.value.value_or(mavCycEd::Configuration()));
  failures.tell(catalogueFile, catalogue.faults, "Mend the file, or name another one.");
  if (!configuration.value || !catalogue.value) return;

  const auto cycle = readCycle(*cycleText, *catalogue.value);
  failures.tell(cycleFile, cycle.faults, "Mend the file, or name another one.");
  if (!cycle.value) return;
  check(cycle.value->cycle, *catalogue.value, failures);
  write(*cycle.value, failures);
}

}  // namespace

int main(int argc, char** argv) {
  Failures failures;
  if (argc != 4) {
    failures.tell("Usage: minimal-tool CONFIGURATION CATALOGUE CYCLE");
    return EXIT_FAILURE;
  }
  try {
    run(argv[1], argv[2], argv[3], failures);
  } catch (const std::exception& error) {
    failures.tell(std::string("The work could not be finished: ") + error.what());
  }
  return failures.any() ? EXIT_FAILURE : EXIT_SUCCESS;
}
