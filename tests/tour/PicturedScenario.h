#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "Camera.h"
#include "Scenario.h"

namespace mavCycEd::tour {

/// A scenario in front of a camera. Its comments say where pictures are taken:
///
///     # Picture: NAME          of what the step before has left
///     # Next picture: NAME     of the message or the open list that the next step brings
class PicturedScenario : public play::StepSource {
 public:
  PicturedScenario(const std::filesystem::path& file, Camera& camera);

  bool hasNext() override;
  int nextLine() const override { return scenario_.nextLine(); }
  play::Step next() override { return scenario_.next(); }
  /// How many pictures the comments ask for.
  std::size_t pictureCount() const { return pictureCount_; }

 private:
  struct Request {
    std::string name;
    bool ofNext = false;
  };

  play::Scenario scenario_;
  Camera& camera_;
  std::map<int, Request> requests_;  // by line number; those that are met are gone
  std::size_t pictureCount_ = 0;
};

}  // namespace mavCycEd::tour
