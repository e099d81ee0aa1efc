#include "support/HostSupport.h"

#include <unistd.h>

#include <array>

#include "locks/HostName.h"
#include "locks/ProcesarBloqueos.h"
#include "support/Fidaleon.h"
#include "support/Informes.h"
#include "support/Listas.h"

namespace fidaleon::support {

HostSupport::HostSupport(forms::UserInterface& ui, Settings& settings, const Clock& clock,
                         const FDAPI::cConfig& config, std::string host, locks::Meet meet)
    : ui_(ui),
      settings_(settings),
      clock_(clock),
      config_(config),
      host_(host.empty() ? locks::hostName() : std::move(host)),
      meet_(std::move(meet)) {}

std::unique_ptr<FDAPI::cFidaleon> HostSupport::create_cFidaleon() {
  return std::make_unique<Fidaleon>(ui_, settings_, clock_, &errors_);
}

std::unique_ptr<FDAPI::cIListas> HostSupport::create_cIListas() {
  return std::make_unique<Listas>(settings_, config_.AppTitle);
}

std::unique_ptr<FDAPI::cProcesarBloqueos> HostSupport::create_cProcesarBloqueos() {
  return std::make_unique<locks::ProcesarBloqueos>(ui_, clock_, config_.Usuario, host_, meet_);
}

std::unique_ptr<FDAPI::cInformes> HostSupport::create_cInformes() {
  return std::make_unique<Informes>();
}

}  // namespace fidaleon::support
