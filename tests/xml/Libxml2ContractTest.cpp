#include "XmlDocumentContract.h"
#include "libxml2/Libxml2DocumentFactory.h"

namespace mavCycEd::test {
namespace {

std::unique_ptr<platform::XmlDocumentFactory> makeLibxml2Factory() {
  return std::make_unique<libxml2::Libxml2DocumentFactory>();
}

INSTANTIATE_TEST_SUITE_P(Libxml2, XmlDocumentContract,
                         testing::Values(XmlImplementation{"Libxml2", makeLibxml2Factory}),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace mavCycEd::test
