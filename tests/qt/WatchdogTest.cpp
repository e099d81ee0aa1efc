#include <gtest/gtest-spi.h>

#include "qt/QtUserInterface.h"
#include "qt/SampleForm.h"
#include "qt/Watchdog.h"

namespace fidaleon::qt::WatchdogTest {

TEST(Watchdog, WindowThatNobodyAnswers_IsNamedAndClosed) {
  const tests::Watchdog watchdog(100);
  QtUserInterface ui;
  EXPECT_NONFATAL_FAILURE(
      ui.msgBox("¿Quién contesta?", forms::MsgButtons::YesNo, forms::MsgIcon::Question, "Aviso"),
      "«Aviso»: ¿Quién contesta?");
  SampleForm form(ui);
  form.cancel.onClick = [] {};
  EXPECT_NONFATAL_FAILURE(form.Show(), "«Nueva partida de bautismo»");
  QMenu menu;
  menu.addAction("Nada");
  EXPECT_NONFATAL_FAILURE(menu.exec(), "nobody answers QMenu");
}

}  // namespace fidaleon::qt::WatchdogTest
