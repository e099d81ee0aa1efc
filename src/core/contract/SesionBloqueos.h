#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>

#include "core/contract/Contexto.h"

namespace fidaleon {

/// The locks of one operation. Define them all, take them as one step; what is held is given back
/// at the end of the block. After a refusal there is nothing to give back.
class SesionBloqueos {
 public:
  SesionBloqueos(Contexto& contexto, FDAPI::Conexion& conexion)
      : conexion_(conexion), sesion_(abrirSesion(contexto, conexion)) {}
  ~SesionBloqueos();
  SesionBloqueos(const SesionBloqueos&) = delete;
  SesionBloqueos& operator=(const SesionBloqueos&) = delete;

  void definir(FDAPI::DefinicionBloqueo bloqueo) { sesion_->DefinirBloqueo(std::move(bloqueo)); }
  void tabla(const char* nombre);
  /// The same table again; `contador` tells the locks apart when they are given back.
  void tabla(const char* nombre, std::int32_t contador);
  void tablasCompartidas(std::initializer_list<const char*> nombres);
  /// `cuales` is a statement that gives their keys.
  void registros(const char* nombreTabla, const std::string& cuales);
  void registrosCompartidos(const char* nombreTabla, const std::string& cuales);
  /// `existe` is a statement that gives a row as long as the record is there; `siNoExiste` is what
  /// the user is told otherwise, empty for the usual words.
  void registro(const char* nombreTabla, std::int32_t id, const std::string& existe,
                const std::string& siNoExiste = {});
  /// With "SELECT clave FROM tabla WHERE clave=id" for that statement.
  void registroPorClave(const char* nombreTabla, const char* clave, std::int32_t id);

  /// False when the operation has to end here; the user knows why.
  bool efectuar();
  /// The same without holding anything.
  bool comprobar();

  /// For those who go on with what they got: 0 or what could not be had (FDAPI::ErrorBloqueo).
  long intentar();
  static constexpr const char* SOLO_CONSULTA = "Solo se puede consultar";
  /// The same for what can then only be looked at, as the user is told. `sinLoCompartido` says
  /// what else it means that a shared part could not be had.
  long intentarParaAbrir(const char* sinLoCompartido = SOLO_CONSULTA);
  /// Who has what was refused last, and since when, in words; empty when nobody has.
  std::string poseedor() const { return sesion_->strPoseedor(); }

  /// What a form says that is shown without what could not be had. Its button tries again as long
  /// as this session lives.
  forms::ReadOnly aviso();

  enum class Apertura { NINGUNA, SOLO_LECTURA, NORMAL };
  /// For an entry that may also be looked at while another works on it.
  Apertura efectuarParaAbrir();
  /// For a card of the parish's people and groups: it can be looked at while another works on it
  /// and where nothing can be locked at all; nothing opens when it is gone.
  Apertura efectuarParaFicha();

  /// Opens a dialog as far as `apertura` allows, and anew each time that a user who could only read
  /// has got the rest. `abrir` makes the dialog and gives back what its Form::open says.
  template <class Abrir>
  void mostrar(Apertura apertura, Abrir&& abrir) {
    while (apertura != Apertura::NINGUNA) {
      std::optional<forms::ReadOnly> solo;
      if (apertura == Apertura::SOLO_LECTURA) solo = aviso();
      apertura = abrir(solo) ? Apertura::NORMAL : Apertura::NINGUNA;
    }
  }

  /// Gives back the locks of a table, or of table and counter or record ("Grupo3"). A name that is
  /// not held is ignored.
  void liberar(const std::string& nombre) { sesion_->LiberarBloqueo(nombre); }

 private:
  std::string motivo() const;

  FDAPI::Conexion& conexion_;
  std::unique_ptr<FDAPI::cProcesarBloqueos> sesion_;
  bool rehusado_ = false;
};

}  // namespace fidaleon
