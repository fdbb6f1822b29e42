#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "TestWindow.h"
#include "mavCycEd/ctlCycEd.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The name box of the variable dialog, with the editor behind it.
class VariableName : public testing::Test {
 protected:
  /// Writes messages down instead of showing them.
  class Messages : public platform::MessageBox {
   public:
    int messageBox(platform::WindowHandle, std::string_view message, std::string_view, int) override {
      messages.emplace_back(message);
      return platform::OkButton;
    }
    std::vector<std::string> messages;
  };

  VariableName() {
    showActive(control);
    control.SetXMLStrings(
        QStringLiteral("<LATESTKAM><ATOMS><ATOM><AtomName>Home</AtomName></ATOM></ATOMS></LATESTKAM>"), QString());
    QTest::keyClicks(control.findChild<QWidget*>(QStringLiteral("cboAtom")), "H");
  }

  template <typename Widget = QWidget>
  Widget& widget(const char* name) {
    auto* const found = control.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no ") + name);
    return *found;
  }
  QLineEdit& name() { return widget<QLineEdit>("txtParamName"); }
  /// Opens the dialog of a new variable and works in it.
  template <typename Work>
  void inDialog(const Work& work) {
    bool worked = false;
    QTimer::singleShot(0, &control, [&] {
      auto& window = widget<QDialog>("frmparams");
      showActive(window);
      work();
      worked = true;
      window.close();
    });
    QTest::mouseClick(&widget("cmdIns"), Qt::LeftButton);
    EXPECT_TRUE(worked);
  }
  void paste(QLineEdit& box, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  }
  void expectWhollySelected(const QString& text) {
    EXPECT_EQ(name().text(), text);
    EXPECT_EQ(name().selectedText(), text);
    EXPECT_TRUE(name().hasFocus());
  }

  const std::string warning = "The parameter name cannot contain any of the following characters:\r\n\"-'&<>;,+\"";
  std::shared_ptr<Messages> boxes = std::make_shared<Messages>();
  ctlCycEd control{HostServices{.messageBox = boxes}};
};

TEST_F(VariableName, IllegalCharactersGoAndTheRestIsWhollySelected) {
  inDialog([this] {
    paste(name(), QStringLiteral("a-b"));
    expectWhollySelected(QStringLiteral("ab"));
    EXPECT_THAT(boxes->messages, ElementsAre(warning));
  });
}

TEST_F(VariableName, TypingGoesOnOverTheSelectedRest) {
  inDialog([this] {
    QTest::keyClicks(&name(), "Vol;");
    expectWhollySelected(QStringLiteral("Vol"));
    QTest::keyClicks(&name(), "Fill");
    EXPECT_EQ(name().text(), "Fill");
    EXPECT_FALSE(name().hasSelectedText());
    EXPECT_THAT(boxes->messages, ElementsAre(warning));
  });
}

TEST_F(VariableName, TextThatComesWhileTheFocusIsElsewhereTakesItToTheName) {
  inDialog([this] {
    widget<QComboBox>("cboUnit").setFocus();
    ASSERT_FALSE(name().hasFocus());
    paste(name(), QStringLiteral("\"Rack\""));
    expectWhollySelected(QStringLiteral("Rack"));
  });
}

TEST_F(VariableName, NothingButIllegalCharactersLeavesAnEmptyNameWithTheFocus) {
  inDialog([this] {
    paste(name(), QStringLiteral("+-"));
    expectWhollySelected(QString());
    EXPECT_THAT(boxes->messages, ElementsAre(warning));
  });
}

TEST_F(VariableName, LegalNamesAreLeftAlone) {
  inDialog([this] {
    paste(name(), QStringLiteral("Füll (1.5) / _*:µ"));
    EXPECT_EQ(name().text(), QStringLiteral("Füll (1.5) / _*:µ"));
    EXPECT_FALSE(name().hasSelectedText());
    EXPECT_THAT(boxes->messages, IsEmpty());
  });
}

}  // namespace
}  // namespace mavCycEd::test
