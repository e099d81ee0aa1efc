#include "core/facade/DialogoPartida.h"

#include "registers/baptism/frmPartidaBautismo.h"

namespace fidaleon {

namespace {

/// Dialogs of all sacraments name what they are told alike.
template <class Dialogo>
class De final : public DialogoPartida {
 public:
  explicit De(Contexto& contexto) : dialogo_(contexto) {}

  void preparar(FDAPI::Conexion& conBaseDatos, const Apertura& apertura) override {
    dialogo_.conBaseDatos = &conBaseDatos;
    if (apertura.lngID != 0) dialogo_.lngID = apertura.lngID;
    dialogo_.Operacion = apertura.Operacion;
    dialogo_.Origen = apertura.Origen;
  }
  forms::Form& formulario() override { return dialogo_; }
  std::string& portapapeles() override { return dialogo_.strPortapapeles; }

 private:
  Dialogo dialogo_;
};

template <class Dialogo>
std::unique_ptr<DialogoPartida> crear(Contexto& contexto) {
  return std::make_unique<De<Dialogo>>(contexto);
}

}  // namespace

CrearDialogoPartida dialogoDePartida(const Sacramento* sacramento) {
  if (sacramento == &BAUTISMO) return crear<frmPartidaBautismo>;
  return nullptr;
}

}  // namespace fidaleon
