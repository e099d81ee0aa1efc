// Shows the sample dialog: on the screen, or as pictures in a folder given as argument.
#include <QApplication>
#include <cstdio>

#include "qt/Picture.h"
#include "qt/QtUserInterface.h"
#include "qt/SampleForm.h"
#include "qt/Spanish.h"

using namespace fidaleon::qt;

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationDisplayName("Fidaleon");
  speakSpanish(application);
  QtUserInterface ui;
  SampleForm form(ui);
  if (argc < 2) {
    form.born.onLostFocus = nullptr;
    form.accept.onClick = [&] {
      ui.msgBox("¿Desea guardar «" + form.name.text() + "»?", fidaleon::forms::MsgButtons::YesNo,
                fidaleon::forms::MsgIcon::Question, {});
    };
    form.Show();
    for (const std::string& line : form.log) std::printf("%s\n", line.c_str());
    std::printf("nombre=%s\napellido=%s\nnacimiento=%s\nprovincia=%s\n", form.name.text().c_str(),
                form.surname1.text().c_str(), form.born.text().c_str(),
                form.province.text().c_str());
    return 0;
  }
  form.Load();
  const QString folder = QString::fromLocal8Bit(argv[1]);
  for (int tab = 0; tab < form.strip.tabCount(); ++tab) {
    form.strip.setTab(tab);
    const QString name = folder + "/muestra-" + QString::number(tab + 1);
    renderToPicture(form, {1366, 768}).save(name + ".png");
    renderToPicture(form, {1366, 768}, 1, true).save(name + "-oscuro.png");
    renderToPicture(form, {1366, 768}, 2).save(name + "-doble.png");
  }
  return 0;
}
