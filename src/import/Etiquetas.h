#pragma once

#include <vector>

namespace FDAPI {

/// The label of a stage of the import, in a window of the host.
class cEtiqueta {
 public:
  virtual ~cEtiqueta() = default;
  virtual void setNegrita(bool si) = 0;
  virtual int Arriba() const = 0;
  virtual void setArriba(int arriba) = 0;
};

/// In the order of the registers: baptism, confirmation, marriage, death. Not owned; may be empty.
using ColEtiqueta = std::vector<cEtiqueta*>;

}  // namespace FDAPI
