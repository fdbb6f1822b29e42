#include "PicturedScenario.h"

#include <fstream>
#include <stdexcept>
#include <string_view>

namespace mavCycEd::tour {

PicturedScenario::PicturedScenario(const std::filesystem::path& file, Camera& camera)
    : scenario_(file), camera_(camera) {
  constexpr std::string_view ofNow = "# Picture: ";
  constexpr std::string_view ofNext = "# Next picture: ";
  std::ifstream stream(file);
  int number = 0;
  for (std::string line; std::getline(stream, line);) {
    ++number;
    if (line.starts_with(ofNow)) requests_[number] = {line.substr(ofNow.size()), false};
    if (line.starts_with(ofNext)) requests_[number] = {line.substr(ofNext.size()), true};
  }
  pictureCount_ = requests_.size();
}

bool PicturedScenario::hasNext() {
  if (camera_.isWaiting()) throw std::runtime_error("Neither a message nor a list came for the picture.");
  const bool has = scenario_.hasNext();
  while (!requests_.empty() && (!has || requests_.begin()->first < scenario_.nextLine())) {
    const Request request = requests_.extract(requests_.begin()).mapped();
    if (request.ofNext) {
      camera_.takeNext(request.name);
    } else {
      camera_.take(request.name);
    }
  }
  return has;
}

}  // namespace mavCycEd::tour
