#include <gmock/gmock.h>

#include <QMetaEnum>
#include <QMetaProperty>
#include <QSignalSpy>

#include "mavCycEd/ctlCycEd.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;

const QMetaObject& meta() { return ctlCycEd::staticMetaObject; }

QMetaProperty property(const char* name) { return meta().property(meta().indexOfProperty(name)); }

TEST(MetaObject, HasTheMembersOfTheInterfaceAndNoOthers) {
  std::vector<std::string> methods;
  for (int i = meta().methodOffset(); i < meta().methodCount(); ++i) {
    methods.push_back(meta().method(i).methodSignature().toStdString());
  }
  EXPECT_THAT(methods, ElementsAre("CycleEditorError(int,QString,QString,QString,QString,short)",
                                   "SetConfigXML(QString)", "SetXMLStrings(QString,QString)", "RetrieveCycle()"));
  std::vector<std::string> properties;
  for (int i = meta().propertyOffset(); i < meta().propertyCount(); ++i)
    properties.emplace_back(meta().property(i).name());
  EXPECT_THAT(properties, ElementsAre("Ignore_Hidden", "CycleChanged", "ResetCycle"));
  EXPECT_EQ(meta().enumeratorCount() - meta().enumeratorOffset(), 1);
}

TEST(MetaObject, ServicesForProgramsInCppAreNotReachedByName) {
  EXPECT_EQ(meta().indexOfMethod("MacroString()"), -1);
  EXPECT_EQ(meta().indexOfMethod("ParamValueControl(QString&)"), -1);
}

TEST(MetaObject, PropertiesAreReadOrWrittenOnly) {
  EXPECT_FALSE(property("Ignore_Hidden").isReadable());
  EXPECT_TRUE(property("Ignore_Hidden").isWritable());
  EXPECT_TRUE(property("CycleChanged").isReadable());
  EXPECT_FALSE(property("CycleChanged").isWritable());
  EXPECT_FALSE(property("ResetCycle").isReadable());
  EXPECT_TRUE(property("ResetCycle").isWritable());
}

TEST(MetaObject, EventNamesItsArguments) {
  const QMetaMethod event = meta().method(meta().methodOffset());
  EXPECT_EQ(event.methodType(), QMetaMethod::Signal);
  EXPECT_THAT(event.parameterNames(),
              ElementsAre("lngError", "strError", "strApplication", "strModule", "strProcedure", "intLineNumber"));
}

TEST(MetaObject, EnumerationHasTheErrorNumber) {
  const QMetaEnum errors = QMetaEnum::fromType<ctlCycEd::mavCycEdError>();
  ASSERT_EQ(errors.keyCount(), 1);
  EXPECT_STREQ(errors.key(0), "mavCycEdErrorInvalidXML");
  EXPECT_EQ(errors.value(0), -2147220991);
}

/// Remembers what it was told.
class RecordingProvider : public AtomListProvider {
 public:
  void setIgnoreHidden(bool ignore) override { told.push_back(ignore); }
  std::vector<std::string> furtherAtomNames() override { return {}; }
  UnitOfMeasure lookUpUnit(std::string_view) override { return {}; }
  bool isObjectHidden(const platform::XmlNode&) override { return false; }
  std::string furtherParameters(std::string_view) override { return {}; }

  std::vector<bool> told;
};

TEST(MetaObject, WriteOnlyPropertiesWorkByName) {
  const auto provider = std::make_shared<RecordingProvider>();
  ctlCycEd control(HostServices{.provider = provider});
  EXPECT_TRUE(control.setProperty("Ignore_Hidden", true));
  EXPECT_TRUE(property("Ignore_Hidden").write(&control, false));
  EXPECT_THAT(provider->told, ElementsAre(true, false));
  EXPECT_TRUE(control.setProperty("ResetCycle", QStringLiteral("<CYCLE/>")));
  EXPECT_EQ(control.property("ResetCycle").toString(), "");
  EXPECT_EQ(control.property("CycleChanged"), QVariant(false));
}

TEST(MetaObject, MethodsCanBeInvokedByName) {
  ctlCycEd control;
  const QSignalSpy errors(&control, &ctlCycEd::CycleEditorError);
  EXPECT_TRUE(QMetaObject::invokeMethod(&control, "SetConfigXML", Q_ARG(QString, QString())));
  EXPECT_TRUE(
      QMetaObject::invokeMethod(&control, "SetXMLStrings", Q_ARG(QString, QString()), Q_ARG(QString, QString())));
  ASSERT_EQ(errors.count(), 1);
  EXPECT_EQ(errors[0][0].toInt(), ctlCycEd::mavCycEdErrorInvalidXML);
  EXPECT_EQ(errors[0][1].toString(), "The 'latest_kam.xml' is empty or doesn't exist!");
  EXPECT_TRUE(errors[0][2].toString().startsWith(QLatin1String("mavCycEdVersion: ")));
  EXPECT_EQ(errors[0][3].toString(), "ctlCycEd");
  EXPECT_EQ(errors[0][4].toString(), "SetXMLStrings ");
  QString cycle(QStringLiteral("unset"));
  EXPECT_TRUE(QMetaObject::invokeMethod(&control, "RetrieveCycle", Q_RETURN_ARG(QString, cycle)));
  EXPECT_EQ(cycle, "");
}

}  // namespace
}  // namespace mavCycEd::test
