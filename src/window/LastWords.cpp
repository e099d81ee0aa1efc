#include "window/LastWords.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdlib>
#include <exception>
#include <iostream>

namespace fidaleon::app {
namespace {

LastWords* current = nullptr;

std::string whatHappened() {
  const std::exception_ptr error = std::current_exception();
  if (!error) return "error desconocido";
  try {
    std::rethrow_exception(error);
  } catch (const std::exception& e) {
    return e.what();
  } catch (...) {
    return "error desconocido";
  }
}

}  // namespace

LastWords::LastWords(FormWatch& watch) : watch_(watch) {
  current = this;
}

LastWords::~LastWords() {
  current = nullptr;
}

std::string LastWords::prepare() {
  std::string words =
      "Ha ocurrido un error inesperado y el programa tiene que cerrarse.\n"
      "Las partidas ya guardadas están a salvo.\n\n" +
      whatHappened();
  if (!current) return words;
  if (current->watch_.keep())
    words +=
        "\n\nLo que estaba escribiendo se ha guardado como borrador: se le ofrecerá cuando vuelva "
        "a abrir la parroquia.";
  return words;
}

void LastWords::speakAndEnd() {
  static bool speaking = false;
  if (!speaking) {
    speaking = true;
    const std::string words = prepare();
    std::cerr << words << std::endl;
    if (qApp && QGuiApplication::platformName() != "offscreen")
      QMessageBox::critical(nullptr, "Fidaleon", QString::fromStdString(words));
  }
  std::_Exit(1);
}

}  // namespace fidaleon::app
