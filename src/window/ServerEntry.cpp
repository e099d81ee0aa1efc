#include "window/ServerEntry.h"

#include "store/postgres/Link.h"
#include "window/Beside.h"
#include "window/PasswordField.h"

namespace fidaleon::app {

void enterServer(QWidget* over, const ParishFiles& files) {
  const store::ServerAddress address = store::readAddress(files.address());
  while (true) {
    const auto known = std::make_shared<std::string>();
    try {
      runForgettable(over,
                     QObject::tr("Entrando en %1…").arg(QString::fromStdString(address.shown())),
                     [address, known] {
                       *known = store::passwordFor(address);
                       const store::Link link(address, *known);
                     });
      return;
    } catch (const store::Error& e) {
      if (e.number() != store::kWrongPassword) throw;
      const QString why = known->empty()
                              ? QObject::tr("El servidor la pide para abrir la parroquia.")
                              : QObject::tr("El servidor no admite la que este equipo conocía.");
      if (!askForPassword(over, address, why)) throw;
    }
  }
}

}  // namespace fidaleon::app
