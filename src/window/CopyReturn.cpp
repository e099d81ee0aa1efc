#include "window/CopyReturn.h"

#include <QWidget>

#include "store/Error.h"
#include "store/Open.h"
#include "store/SoundnessCheck.h"
#include "window/Beside.h"
#include "window/CarefulQuestion.h"
#include "window/CopiesDialog.h"

namespace fidaleon::app {
namespace {

constexpr const char* TITLE = "Volver a una copia";
constexpr const char* BEFORE = "Antes de volver a una copia";

std::string named(const SafetyCopy& copy) {
  return "La copia del " + spoken(copy.moment).toStdString();
}

std::string whyUnusable(const SafetyCopy& copy, const store::Error& error) {
  switch (error.kind()) {
    case store::ErrorKind::NotADatabase:
    case store::ErrorKind::UnknownName:
    case store::ErrorKind::Syntax:
      return named(copy) + " está estropeada, o no es de una parroquia, y no puede usarse.";
    case store::ErrorKind::NewerSchema:
      return named(copy) +
             " se hizo con una versión más nueva del programa. Actualícelo en este equipo para "
             "poder usarla.";
    default:
      return error.what();
  }
}

}  // namespace

bool CopyReturn::run() {
  if (!isAlone()) return false;
  CopiesDialog dialog(copies_, over_);
  return dialog.exec() == QDialog::Accepted && to(*dialog.chosen());
}

bool CopyReturn::to(const SafetyCopy& copy) {
  if (!isAlone()) return false;
  const std::unique_ptr<store::Restore> restore = prepared(copy);
  return restore && confirmed(copy) && replace(copy, *restore);
}

bool CopyReturn::isAlone() const {
  try {
    const auto there = presence_.others();
    if (!there.empty()) refuse(there);
    return there.empty();
  } catch (const locks::Unusable& e) {
    tell(e.what(), forms::MsgIcon::Critical);
    return false;
  }
}

void CopyReturn::refuse(const std::vector<locks::Holder>& there) const {
  std::string who;
  for (const locks::Holder& holder : there) who += "\n  • " + spoken(holder);
  tell("No se puede volver a una copia mientras alguien más trabaja en la parroquia:\n" + who +
           "\n\nPídale que cierre el programa y vuelva a intentarlo.",
       forms::MsgIcon::Exclamation);
}

std::unique_ptr<store::Restore> CopyReturn::prepared(const SafetyCopy& copy) const {
  try {
    const forms::Hourglass hourglass(ui_);
    std::unique_ptr<store::Restore> restore;
    runBeside(over_, QObject::tr("Leyendo y comprobando la copia…"), MayCancel::Yes,
              [&](const store::Progress& progress) {
                restore = std::make_unique<store::Restore>(SafetyCopies::present(copy.file),
                                                           files_.parish(), store::parishSchema(),
                                                           progress);
              });
    return restore;
  } catch (const store::Error& e) {
    if (e.kind() == store::ErrorKind::Cancelled) return nullptr;
    tell(whyUnusable(copy, e) + "\n\nLa parroquia no ha cambiado.", forms::MsgIcon::Critical);
    return nullptr;
  }
}

bool CopyReturn::confirmed(const SafetyCopy& copy) const {
  const QString kept =
      parish_ != nullptr
          ? QObject::tr(
                "Lo que hay ahora se guardará antes en otra copia, «%1», por si hubiera que "
                "deshacerlo.")
                .arg(BEFORE)
          : QObject::tr(
                "El archivo que no se puede abrir se conservará con otro nombre, por si "
                "alguien pudiera recuperar algo de él.");
  return askCarefully(
      over_, QObject::tr(TITLE), QObject::tr("¿Volver a la copia del %1?").arg(spoken(copy.moment)),
      QObject::tr("La parroquia quedará como estaba en ese momento. Se perderá todo lo que se ha "
                  "inscrito, corregido o eliminado desde entonces en todos los puestos.\n\n") +
          kept,
      QObject::tr("&Volver a la copia"));
}

bool CopyReturn::replace(const SafetyCopy& copy, store::Restore& restore) {
  try {
    for (bool keepPresent = true;; keepPresent = false) {
      std::string whyNotKept;
      const auto there = attempt(restore, keepPresent, whyNotKept);
      if (!there.empty()) {
        refuse(there);
        return false;
      }
      if (metDamage_) return false;
      if (whyNotKept.empty()) break;
      if (!askToGoOnWithoutCopy(over_, whyNotKept)) return false;
    }
  } catch (const store::Unconfirmed& e) {
    tell(std::string(e.what()) +
             "\n\nCompruebe el disco, y haga una copia de seguridad en otro antes de seguir.",
         forms::MsgIcon::Critical);
    return true;
  } catch (const store::Error& e) {
    tell("No se ha podido volver a la copia.\n\n" + std::string(e.what()),
         forms::MsgIcon::Critical);
    return false;
  } catch (const locks::Unusable& e) {
    tell(e.what(), forms::MsgIcon::Critical);
    return false;
  }
  std::string said =
      "La parroquia ha vuelto a la copia del " + spoken(copy.moment).toStdString() + ".";
  if (!aside_.empty())
    said += "\n\nEl archivo que había se ha guardado como «" + aside_.filename().string() + "».";
  tell(said, forms::MsgIcon::Information);
  return true;
}

// Nothing is replaced when the present state should be kept and cannot be.
std::vector<locks::Holder> CopyReturn::attempt(store::Restore& restore, bool keepPresent,
                                               std::string& whyNotKept) {
  const forms::Hourglass hourglass(ui_);
  return presence_.alone("está volviendo a una copia de la parroquia", [&] {
    runBeside(over_, QObject::tr("Volviendo a la copia…"), MayCancel::No,
              [&](const store::Progress& progress) {
                if (parish_ == nullptr)
                  aside_ = restore.takePlace();
                else if (!keepPresent || keptPresent(whyNotKept, store::partOf(progress, 0, 600)))
                  restore.run(store::partOf(progress, 600, 1000));
              });
  });
}

// From its own connection: that of the window is in use by another thread.
bool CopyReturn::keptPresent(std::string& whyNotKept, const store::Progress& progress) {
  try {
    copies_.make(*store::openDatabase(files_.parish(), store::parishSchema()), BEFORE, thisMoment(),
                 progress);
    return true;
  } catch (const store::Error& e) {
    metDamage_ = store::isDamaged(files_.parish());
    whyNotKept = e.what();
    return false;
  }
}

void CopyReturn::tell(const std::string& text, forms::MsgIcon icon) const {
  ui_.msgBox(text, forms::MsgButtons::Ok, icon, TITLE);
}

}  // namespace fidaleon::app
