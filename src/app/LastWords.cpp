#include "app/LastWords.h"

#include <QApplication>
#include <QDateTime>
#include <QMessageBox>
#include <cstdlib>
#include <exception>
#include <iostream>

namespace fidaleon::app {
namespace {

const LastWords* current = nullptr;

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

LastWords::LastWords(const FormWatch& watch, std::filesystem::path directory)
    : watch_(watch), directory_(std::move(directory)) {
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
  const std::string moment = QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss").toStdString();
  const std::filesystem::path draft = saveDraft(current->watch_, current->directory_, moment);
  if (!draft.empty())
    words += "\n\nLo que estaba escribiendo se ha guardado en «" + draft.string() + "».";
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
