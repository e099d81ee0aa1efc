
#include "qt/QtUserInterface.h"
#include "qt/SampleForm.h"

namespace fidaleon::qt::QtUserInterfaceTest {

using namespace forms;

/// Does something to the window that blocks, as soon as the program waits for the user.
template <class Act>
void whenAsked(Act act) {
  QTimer::singleShot(0, qApp, [act] {
    QWidget* window = QApplication::activeModalWidget();
    ASSERT_TRUE(window);
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    act(*window);
  });
}

QAbstractButton* buttonOf(QWidget& window, const QString& caption) {
  for (auto* button : window.findChildren<QAbstractButton*>())
    if (button->text().remove('&') == caption) return button;
  return nullptr;
}

/// What a window manager does when the window above has gone.
void comeBackTo(QWidget& window) {
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

TEST(QtUserInterface, Keys_AreNamedAsTheyStandOnTheKeyboard) {
  const QKeySequence keys(QStringLiteral("Ctrl+Shift+P,Return,Del,Esc"));
  EXPECT_EQ(keys.toString(QKeySequence::NativeText), "Ctrl+Mayúsculas+P, Intro, Supr, Esc");
}

TEST(QtUserInterface, Messages_HaveSpanishButtonsInOrderAndEscapeIsTheSafeOne) {
  QtUserInterface ui;
  std::vector<std::string> captions;
  whenAsked([&](QWidget& box) {
    for (auto* button : dynamic_cast<QMessageBox&>(box).buttons())
      captions.push_back(button->text().remove('&').toStdString());
    EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(), "¿Guardar <b>todo</b>?");
    EXPECT_EQ(dynamic_cast<QMessageBox&>(box).textFormat(), Qt::PlainText);
    buttonOf(box, "No")->click();
  });
  EXPECT_EQ(ui.msgBox("¿Guardar <b>todo</b>?", MsgButtons::YesNoCancel, MsgIcon::Question, "Aviso"),
            Answer::No);
  EXPECT_THAT(captions, ElementsAre("Sí", "No", "Cancelar"));
  const std::pair<MsgButtons, Answer> onEscape[] = {{MsgButtons::Ok, Answer::Ok},
                                                    {MsgButtons::OkCancel, Answer::Cancel},
                                                    {MsgButtons::YesNo, Answer::No},
                                                    {MsgButtons::YesNoCancel, Answer::Cancel}};
  for (const auto& [buttons, answer] : onEscape) {
    whenAsked([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(ui.msgBox("¿?", buttons, MsgIcon::None, {}), answer);
  }
  const auto enter = [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); };
  whenAsked(enter);
  EXPECT_TRUE(forms::ask(ui, "¿?"));
  whenAsked([&](QWidget& box) {
    EXPECT_EQ(dynamic_cast<QMessageBox&>(box).icon(), QMessageBox::Warning);
    const auto labels = box.findChildren<QLabel*>("qt_msgbox_informativelabel");
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(labels[0]->text()).toPlainText(), "Ana <b>\nGil");
    enter(box);
  });
  EXPECT_FALSE(forms::ask(ui, "¿Eliminar?", {}, forms::Stake::Loss, "Ana <b>\nGil"));
}

TEST(QtUserInterface, InputBox_GivesTheTextOrNothingWhenCancelled) {
  QtUserInterface ui;
  whenAsked([](QWidget& box) {
    auto* edit = box.findChild<QLineEdit*>();
    EXPECT_EQ(edit->selectedText(), "antes");
    QTest::keyClicks(edit, "Ana");
    QTest::keyClick(edit, Qt::Key_Return);
  });
  EXPECT_EQ(ui.inputBox("¿Nombre?", "", "antes"), "Ana");
  whenAsked([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(ui.inputBox("¿Nombre?", "", "antes"), std::nullopt);
}

TEST(QtUserInterface, FormThatAsksWhileItIsLeft_MessageStandsOverItAndAllGoesOn) {
  QtUserInterface ui;
  SampleForm form(ui);
  bool asked = false;
  form.name.onLostFocus = [&](Control*) {
    if (form.isUnloaded() || asked) return;
    asked = true;
    ui.msgBox("El nombre está vacío.", MsgButtons::Ok, MsgIcon::Exclamation, {});
    form.setFocus(form.name);
  };
  whenAsked([&](QWidget& window) {
    form.setFocus(form.name);
    auto& dialog = dynamic_cast<FormDialog&>(window);
    whenAsked([&](QWidget& box) {
      EXPECT_EQ(box.parentWidget(), &dialog);
      buttonOf(box, "Aceptar")->click();
    });
    QTest::mouseClick(dialog.fieldOf(form.surname1), Qt::LeftButton);
    EXPECT_TRUE(asked);
    comeBackTo(dialog);
    EXPECT_EQ(form.activeControl(), &form.name);
    EXPECT_EQ(QApplication::focusWidget(), dialog.fieldOf(form.name));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  form.Show();
  EXPECT_TRUE(form.isUnloaded());
}

TEST(QtUserInterface, Hourglass_NestsAndYieldsToQuestions) {
  QtUserInterface ui;
  ui.setHourglass(false);  // once too often
  {
    const Hourglass outer(ui);
    const Hourglass inner(ui);
    ASSERT_TRUE(QGuiApplication::overrideCursor());
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    whenAsked([](QWidget& box) {
      EXPECT_FALSE(QGuiApplication::overrideCursor());
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    ui.msgBox("¿?", MsgButtons::Ok, MsgIcon::None, {});
    EXPECT_TRUE(QGuiApplication::overrideCursor());
  }
  EXPECT_FALSE(QGuiApplication::overrideCursor());
}

TEST(QtUserInterface, Progress_StandsUntilClosedAndShowsItsShare) {
  QtUserInterface ui;
  ui.progressOpen(200, "Copiando las partidas...");
  QWidget* window = QApplication::activeModalWidget();
  ASSERT_TRUE(window);
  ui.progressMove(50);
  auto* bar = window->findChild<QProgressBar*>();
  EXPECT_EQ(bar->value() * 4, bar->maximum());
  QTest::keyClick(window, Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible());
  EXPECT_THROW(ui.progressMove(51), forms::Cancelled);
  ui.progressClose();
  EXPECT_FALSE(QApplication::activeModalWidget());
  ui.progressMove(1);
  ui.progressClose();
}

TEST(QtUserInterface, PrinterWidths_GrowWithTheTextInTwips) {
  QtUserInterface ui;
  const double one = ui.printerTextWidth("Nacimiento", "Arial");
  // A letter of 8 points is between 40 and 160 twentieths of a point wide on the average.
  EXPECT_GT(one, 400);
  EXPECT_LT(one, 1600);
  EXPECT_NEAR(ui.printerTextWidth("NacimientoNacimiento", "Arial"), 2 * one, one * 0.05);
  EXPECT_EQ(ui.printerTextWidth("", "Arial"), 0);
}

}  // namespace fidaleon::qt::QtUserInterfaceTest
