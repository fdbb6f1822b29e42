#include "catalogue/cAtoms.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "TestPlatform.h"

namespace mavCycEd {
namespace {

using test::errorNumberOf;
using ::testing::ElementsAre;

std::vector<std::string> namesOf(const cAtoms& atoms) {
  std::vector<std::string> names;
  for (const cAtom& atom : atoms.NewEnum()) names.push_back(atom.AtomName());
  return names;
}

cAtom& add(cAtoms& atoms, const std::string& name, std::string_view key = {}) {
  return atoms.Add(name, "", "", std::string(), key);
}

TEST(cAtom, ReadsAsEmptyWhileUnset) {
  const cAtom atom;
  EXPECT_EQ(atom.AtomName(), "");
  EXPECT_EQ(atom.Duration(), "");
  EXPECT_EQ(atom.GroupIndex(), "");
  EXPECT_TRUE(holdsNothing(atom.AtomParameters()));
}

TEST(cAtom, KeepsTextsUnchanged) {
  cAtom atom;
  atom.setAtomName(" Größe\r\n");
  atom.setDuration("007.50 s");
  atom.setGroupIndex("-1e3");
  EXPECT_EQ(atom.AtomName(), " Größe\r\n");
  EXPECT_EQ(atom.Duration(), "007.50 s");
  EXPECT_EQ(atom.GroupIndex(), "-1e3");
}

TEST(cAtom, GivesBackTheParametersThatWereStored) {
  cAtom atom;
  atom.setAtomParameters(std::string("Volume;10"));
  EXPECT_EQ(std::get<std::string>(atom.AtomParameters()), "Volume;10");
  atom.setAtomParameters(2.5);
  EXPECT_EQ(std::get<double>(atom.AtomParameters()), 2.5);
  const auto object = std::make_shared<int>(7);
  atom.setAtomParametersObject(object);
  EXPECT_EQ(std::get<ObjectReference>(atom.AtomParameters()), object);
}

TEST(cAtoms, IsEmptyAtFirst) {
  const cAtoms atoms;
  EXPECT_EQ(atoms.Count(), 0);
  EXPECT_TRUE(atoms.begin() == atoms.end());
}

TEST(cAtoms, AddSetsAllPropertiesAndGivesTheNewAtom) {
  cAtoms atoms;
  cAtom& atom = atoms.Add("MIX", "12", "3", std::string("Volume;10"), "first");
  EXPECT_EQ(atom.AtomName(), "MIX");
  EXPECT_EQ(atom.Duration(), "12");
  EXPECT_EQ(atom.GroupIndex(), "3");
  EXPECT_EQ(textOf(atom.AtomParameters()), "Volume;10");
  EXPECT_EQ(&atoms.Item(1), &atom);
  EXPECT_EQ(&atoms.Item("first"), &atom);
}

TEST(cAtoms, AddKeepsAnObjectByReference) {
  cAtoms atoms;
  const auto object = std::make_shared<int>(7);
  atoms.Add("MIX", "", "", ObjectReference(object));
  *object = 8;
  EXPECT_EQ(*std::static_pointer_cast<int>(std::get<ObjectReference>(atoms.Item(1).AtomParameters())), 8);
  EXPECT_EQ(object.use_count(), 2);
  atoms.Remove(1);
  EXPECT_EQ(object.use_count(), 1);
}

TEST(cAtoms, PositionsCountFromOneInTheOrderOfAdding) {
  cAtoms atoms;
  add(atoms, "A");
  add(atoms, "B", "key");
  add(atoms, "C");
  EXPECT_EQ(atoms.Count(), 3);
  EXPECT_EQ(atoms.Item(1).AtomName(), "A");
  EXPECT_EQ(atoms.Item(2).AtomName(), "B");
  EXPECT_EQ(atoms.Item(3).AtomName(), "C");
}

TEST(cAtoms, PositionsOutOfRangeFail) {
  cAtoms atoms;
  EXPECT_EQ(errorNumberOf([&] { atoms.Item(1); }), 9);
  add(atoms, "A");
  for (const int position : {0, 2, -1, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(errorNumberOf([&] { atoms.Item(position); }), 9) << position;
    EXPECT_EQ(errorNumberOf([&] { atoms.Remove(position); }), 9) << position;
  }
  EXPECT_EQ(atoms.Count(), 1);
}

TEST(cAtoms, KeysAreComparedWithoutRegardToCase) {
  cAtoms atoms;
  add(atoms, "A", "Größe 10 \u00B5l");
  EXPECT_EQ(atoms.Item("GRÖẞE 10 \u03BCL").AtomName(), "A");
  EXPECT_EQ(errorNumberOf([&] { add(atoms, "B", "größe 10 µL"); }), 457);
  atoms.Remove("gRÖßE 10 µl");
  EXPECT_EQ(atoms.Count(), 0);
}

TEST(cAtoms, UnknownKeysFail) {
  cAtoms atoms;
  add(atoms, "A");
  add(atoms, "B", "key");
  for (const char* key : {"A", "keys", "1", ""}) {
    EXPECT_EQ(errorNumberOf([&] { atoms.Item(std::string_view(key)); }), 5) << key;
    EXPECT_EQ(errorNumberOf([&] { atoms.Remove(std::string_view(key)); }), 5) << key;
  }
  EXPECT_EQ(atoms.Count(), 2);
}

TEST(cAtoms, AddUnderAKeyInUseFailsAndChangesNothing) {
  cAtoms atoms;
  add(atoms, "A", "key");
  EXPECT_EQ(errorNumberOf([&] { add(atoms, "B", "key"); }), 457);
  EXPECT_THAT(namesOf(atoms), ElementsAre("A"));
  EXPECT_EQ(atoms.Item("key").AtomName(), "A");
  add(atoms, "C", "other");
  EXPECT_EQ(atoms.Item(2).AtomName(), "C");
}

TEST(cAtoms, AtomsWithoutKeyMayHaveTheSameName) {
  cAtoms atoms;
  add(atoms, "A");
  add(atoms, "A");
  EXPECT_THAT(namesOf(atoms), ElementsAre("A", "A"));
}

TEST(cAtoms, RemovingMovesTheAtomsBehindUp) {
  cAtoms atoms;
  add(atoms, "A", "a");
  add(atoms, "B", "b");
  add(atoms, "C", "c");
  atoms.Remove(1);
  EXPECT_THAT(namesOf(atoms), ElementsAre("B", "C"));
  EXPECT_EQ(atoms.Item(1).AtomName(), "B");
  EXPECT_EQ(atoms.Item("c").AtomName(), "C") << "keys stay with their atoms";
  atoms.Remove("c");
  EXPECT_THAT(namesOf(atoms), ElementsAre("B"));
}

TEST(cAtoms, ARemovedAtomsKeyIsFree) {
  cAtoms atoms;
  add(atoms, "A", "key");
  atoms.Remove("key");
  EXPECT_EQ(errorNumberOf([&] { atoms.Item("key"); }), 5);
  add(atoms, "B", "key");
  EXPECT_EQ(atoms.Item("key").AtomName(), "B");
}

TEST(cAtoms, ClearingRemovesAtomsAndKeys) {
  cAtoms atoms;
  add(atoms, "A", "key");
  add(atoms, "B");
  atoms.Clear();
  EXPECT_EQ(atoms.Count(), 0);
  add(atoms, "C", "key");
  EXPECT_THAT(namesOf(atoms), ElementsAre("C"));
}

TEST(cAtoms, AnAtomStaysWhereItIsWhileOthersComeAndGo) {
  cAtoms atoms;
  add(atoms, "A");
  cAtom& kept = add(atoms, "B");
  for (int count = 0; count < 1000; ++count) add(atoms, "C");
  atoms.Remove(1);
  kept.setDuration("5");
  EXPECT_EQ(&atoms.Item(1), &kept);
  EXPECT_EQ(atoms.Item(1).Duration(), "5");
}

TEST(cAtoms, TheEnumeratorGivesAtomsThatCanBeChanged) {
  cAtoms atoms;
  add(atoms, "A");
  add(atoms, "B");
  for (cAtom& atom : atoms) atom.setGroupIndex(atom.AtomName() + "1");
  EXPECT_EQ(atoms.Item(1).GroupIndex(), "A1");
  EXPECT_EQ(atoms.NewEnum().begin()->GroupIndex(), "A1");
}

}  // namespace
}  // namespace mavCycEd
