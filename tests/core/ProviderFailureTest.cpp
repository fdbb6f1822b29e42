#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "TestDocuments.h"
#include "TestEditor.h"

namespace mavCycEd {
namespace {

using test::element;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A provider that fails at one of its questions.
class FailingProvider : public AtomListProvider {
 public:
  enum class Question { None, IgnoreHidden, AtomNames, Unit, Object, Parameters };

  void setIgnoreHidden(bool ignore) override {
    ask(Question::IgnoreHidden);
    ignored = ignore;
  }
  std::vector<std::string> furtherAtomNames() override {
    ask(Question::AtomNames);
    return {"FIRST", "", "LAST"};
  }
  UnitOfMeasure lookUpUnit(std::string_view unitName) override {
    ask(Question::Unit);
    units.emplace_back(unitName);
    return {std::string(unitName), 0};
  }
  bool isObjectHidden(const platform::XmlNode&) override {
    ask(Question::Object);
    return false;
  }
  std::string furtherParameters(std::string_view atomName) override {
    ask(Question::Parameters);
    atoms.emplace_back(atomName);
    return further;
  }

  Question failing = Question::None;
  bool ignored = false;
  std::vector<std::string> units;
  std::vector<std::string> atoms;
  std::string further;

 private:
  void ask(Question question) const {
    if (question == failing) throw std::runtime_error("the suite is down");
  }
};

using Question = FailingProvider::Question;

class ProviderFailureTest : public ::testing::Test {
 protected:
  ProviderFailureTest() {
    catalogue_.atoms = {{"MIX", {"Volume;1;9;9;1;ml", "Place;TRAY;None", "Speed;1;9;1;1;None"}}};
    catalogue_.objects = "<O><C>TRAY</C><N>Tray1</N></O><O><C>TRAY</C><N>Tray2</N></O>";
  }
  void load() { editor_.load(xmlOf(catalogue_), test::cycleOf({"MIX"})); }

  test::Catalogue catalogue_;
  std::shared_ptr<FailingProvider> provider_ = std::make_shared<FailingProvider>();
  test::TestEditor editor_{provider_};
};

TEST_F(ProviderFailureTest, ASuppliedProviderAnswersAllQuestions) {
  provider_->further = "Extra;1;9;9;1;s|More;1;9;1;1;None";
  editor_.control().Ignore_Hidden(true);
  load();
  EXPECT_TRUE(provider_->ignored);
  EXPECT_THAT(editor_.screen().cboAtom.items(), ElementsAre("MIX", "FIRST", "LAST")) << "empty names are left out";
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Volume(ml)", "Place", "Speed", "Extra(s)", "More"));
  EXPECT_EQ(editor_.control().parameterRows().row(1).Factor, 1) << "a factor of 0 counts as 1";
  EXPECT_THAT(provider_->atoms, Contains("MIX"));
  EXPECT_THAT(provider_->units, Contains("ml"));
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(ProviderFailureTest, WithoutItsNamesTheLoadingEnds) {
  provider_->failing = Question::AtomNames;
  EXPECT_NO_THROW(load());
  EXPECT_THAT(editor_.failedProcedures(), ElementsAre("SetXMLStrings "));
  EXPECT_EQ(editor_.errors.front().lngError, 51);
  EXPECT_EQ(editor_.errors.front().strModule, "ctlCycEd");
  EXPECT_THAT(editor_.errors.front().strError, ::testing::HasSubstr("the suite is down"));
}

TEST_F(ProviderFailureTest, WithoutUnitsNoRowIsFilled) {
  provider_->failing = Question::Unit;
  EXPECT_NO_THROW(load());
  EXPECT_THAT(editor_.failedProcedures(), Each(std::string("FillParams ")));
  EXPECT_THAT(editor_.gridKeys(), IsEmpty());
  EXPECT_THAT(editor_.atomNames(), ElementsAre("MIX")) << "the cycle is loaded all the same";
}

TEST_F(ProviderFailureTest, WithoutTheObjectTestTheOtherRowsAreFilled) {
  provider_->failing = Question::Object;
  EXPECT_NO_THROW(load());
  EXPECT_THAT(editor_.failedProcedures(), Each(std::string("FillObjectItems ")));
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Volume(ml)", "Place", "Speed"));
}

TEST_F(ProviderFailureTest, WithoutFurtherParametersTheCataloguesOwnAreShown) {
  provider_->failing = Question::Parameters;
  EXPECT_NO_THROW(load());
  EXPECT_THAT(editor_.failedProcedures(), Each(std::string("FillDefaultParams ")));
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Volume(ml)", "Place", "Speed"));
}

TEST_F(ProviderFailureTest, WithoutItsSettingIgnoreHiddenFails) {
  provider_->failing = Question::IgnoreHidden;
  EXPECT_NO_THROW(editor_.control().Ignore_Hidden(true));
  EXPECT_THAT(editor_.failedProcedures(), ElementsAre("Ignore_Hidden "));
}

TEST_F(ProviderFailureTest, AProviderThatWorksAgainIsUsedAgain) {
  provider_->failing = Question::AtomNames;
  load();
  editor_.errors.clear();
  provider_->failing = Question::None;
  load();
  EXPECT_THAT(editor_.errors, IsEmpty());
  EXPECT_THAT(editor_.screen().cboAtom.items(), ElementsAre("MIX", "FIRST", "LAST"));
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Volume(ml)", "Place", "Speed"));
  EXPECT_THAT(editor_.lines(), ElementsAre("01 MIX"));
}

TEST_F(ProviderFailureTest, TheControlReleasesTheProviderWhenItEnds) {
  std::weak_ptr<FailingProvider> provider;
  {
    auto supplied = std::make_shared<FailingProvider>();
    provider = supplied;
    test::TestEditor editor(std::move(supplied));
    EXPECT_FALSE(provider.expired());
  }
  EXPECT_TRUE(provider.expired());
}

}  // namespace
}  // namespace mavCycEd
