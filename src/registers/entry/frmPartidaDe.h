#pragma once

#include <algorithm>
#include <limits>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "core/lists/Enlaces.h"
#include "core/statements/Columnas.h"
#include "registers/common/Almacen.h"
#include "registers/common/Guiones.h"
#include "registers/common/Operacion.h"
#include "registers/entry/ValorDeCampo.h"
#include "registers/entry/frmPartida.h"

namespace fidaleon {

/// The row of an entry in one of its tables.
template <class Registro>
struct FilaLeida {
  const Tabla<Registro>* tabla;
  const char* seleccion;  // of a statement that the key follows
  std::int32_t Registro::*clave;
};

/// frmPartida on the record of one sacrament, which brings
///
///   DatosPartida datosDe(const Registro&);
///   void ponerDatos(Registro&, const DatosPartida&);
template <class Registro>
class frmPartidaDe : public frmPartida {
 public:
  using Coleccion = std::vector<Registro>;
  /// The list of the book; not owned, only with the origin of that list.
  PartidasListadas<Registro>* colPartidas = nullptr;

 protected:
  /// The descriptions are not owned.
  frmPartidaDe(Contexto& contexto, const VariantePartida& variante,
               const DescripcionAlmacen<Registro>& almacen)
      : frmPartida(contexto, variante), almacen_(almacen) {}

  // One line of a dialog's fields.
  struct CampoTexto {
    int indice;
    const char* etiqueta;
    std::string Registro::*miembro;
    Clase clase = Clase::Texto;
    Voz voz = Voz::Ninguna;
  };
  struct CampoFecha {
    int indice;
    const char* etiqueta;
    std::string Registro::*miembro;
    std::string nombre;  // "fecha de bautismo"
    RevisionFechas::Hoy hoy;
  };
  struct CampoMunicipio {
    int provincia;
    const char* etiquetaProvincia;
    const char* etiquetaPoblacion;
    std::int32_t Registro::*miembro;
  };
  void textos(forms::ControlArray<forms::TextBox>& grupo, std::span<const CampoTexto> campos,
              bool visibles = true) {
    for (const CampoTexto& c : campos) {
      forms::TextBox& campo = crearTexto(grupo, c.indice, c.etiqueta, c.clase);
      campo.setVisible(visibles);
      ofrecer(campo, c.voz);
      enlaces_.textos.push_back({&campo, c.miembro});
    }
  }
  void numero(int indice, const char* etiqueta, std::int32_t Registro::*miembro) {
    forms::TextBox& campo = crearTexto(txtPartida, indice, etiqueta, Clase::Cifras);
    campo.setMaxLength(std::numeric_limits<std::int32_t>::digits10);
    enlaces_.numeros.push_back({&campo, miembro});
  }
  void byte(int indice, const char* etiqueta, std::uint8_t Registro::*miembro) {
    forms::TextBox& campo = crearTexto(txtPartida, indice, etiqueta, Clase::Cifras);
    limitar(indice, std::numeric_limits<std::uint8_t>::max());
    enlaces_.bytes.push_back({&campo, miembro});
  }
  void fechas(std::span<const CampoFecha> campos) {
    for (const CampoFecha& c : campos)
      enlaces_.fechas.push_back({&crearFecha(c.indice, c.etiqueta, c.nombre, c.hoy), c.miembro});
  }
  void municipios(std::span<const CampoMunicipio> campos, bool visibles = true) {
    for (const CampoMunicipio& c : campos) {
      enlaces_.municipios.push_back(
          {&crearMunicipio(c.provincia, c.etiquetaProvincia, c.etiquetaPoblacion), c.miembro});
      for (const int lista : {c.provincia, c.provincia + 1}) cboPartida[lista].setVisible(visibles);
    }
  }
  void hora(forms::TimeField& campo, std::string Registro::*miembro) {
    crearHora(campo);
    enlaces_.horas.push_back({&campo, miembro});
  }
  void lista(int indice, const char* etiqueta, std::string Registro::*miembro) {
    enlaces_.listas.push_back({&crearLista(indice, etiqueta), miembro});
  }

  // What the sacrament keeps beside its record.
  /// A correction is about to be stored, or put into the list; false gives it up.
  virtual bool antesDeCorregir(Registro&) { return true; }
  /// A new entry stands in its tables, with its keys; what belongs to it is stored in the same
  /// transaction. Not when it was put into a list. Gives what the user is to be told when that
  /// could not be stored.
  virtual const char* trasAlta(const Registro&) { return nullptr; }

  // What the sacrament knows of its record.
  /// That of the entry first, then those that hang on it, in the order in which they are read.
  virtual std::span<const FilaLeida<Registro>> filas() const = 0;
  /// A SELECT of entries with the data of this one, with the key in it, which goes on with
  /// " AND (...)"; empty when there can be none.
  virtual std::string sqlRepetida(const Registro& partida) = 0;
  virtual bool mismosDatos(const Registro& a, const Registro& b) const = 0;
  /// Before a correction is compared with what was read.
  virtual void completarEdicion(Registro&) const {}
  /// Whether a correction changes anything.
  virtual bool ComprobarCambios(Registro& nuevo) const {
    bool cambia = false;
    almacen_.cadaTabla([&](const Tabla<Registro>& tabla) {
      cambia = cambia || !mismaFila(tabla, registro_, nuevo);
    });
    return cambia;
  }

  /// The baptism of a person, as the columns that this register takes from it.
  template <std::size_t PERSONAS>
  void importarBautizado(std::span<const ParImportado<Registro, PERSONAS>> pares,
                         const Bautizado& de, std::size_t persona = 0) {
    enlaces_.mostrarLoQue([&](Registro& r) { fidaleon::importar(pares, de, r, persona); });
  }

  /// The entry as it was read; for a new one, what a look-up brought.
  Registro registro_;
  Enlaces<Registro> enlaces_;

 private:
  void vaciarRegistro() final { registro_ = {}; }
  void mostrarRegistro() final { enlaces_.mostrar(registro_, GUIONES); }
  DatosPartida datos() const final { return datosDe(registro_); }
  std::vector<Posicion> posicionesEnLista() const final {
    std::vector<Posicion> posiciones;
    posiciones.reserve(colPartidas->size());
    cadaOtra([&](std::size_t i) {
      posiciones.push_back({text::toInteger(colPartidas->texto(i, LISTADO_FOLIO)).value_or(0),
                            colPartidas->texto(i, LISTADO_NUMERO)});
      return true;
    });
    return posiciones;
  }
  /// `hacer` with the place of each item that is neither being edited nor to be deleted, as long as
  /// it answers true.
  template <class Hacer>
  bool cadaOtra(Hacer&& hacer) const {
    for (std::size_t i = 0; i < colPartidas->size(); ++i) {
      const Registro* tocada = colPartidas->tocada(i);
      const bool esEsta = !esAlta() && i == lngPosicion;
      if (!esEsta && !(tocada && borrada(*tocada)) && !hacer(i)) return false;
    }
    return true;
  }
  bool marcadaParaBorrar(std::int64_t id) const {
    return desdeLista() && !colPartidas->cadaTocada([&](const Registro& r) {
      return !(r.Estado && borrada(r) && datosDe(r).id == id);
    });
  }
  static bool borrada(const Registro& r) { return operacionDe(r) == FDAPI::cCOperacion::Borrar; }

  bool leerRegistro() final {
    if (desdeLista()) {
      registro_ = colPartidas->at(lngPosicion);
      return true;
    }
    return leer(lngID, registro_);
  }
  /// False when rows of it are missing.
  bool leer(std::int32_t id, Registro& r) const {
    DatosPartida d;
    d.id = id;
    ponerDatos(r, d);
    bool completa = true;
    for (const FilaLeida<Registro>& de : filas()) {
      const store::Recordset fila =
          conBaseDatos->Execute(de.seleccion + std::to_string(r.*de.clave));
      const bool esta = !fila.EOF_();
      if (!esta && &de == &filas().front()) throw std::runtime_error("La partida ya no existe.");
      if (esta) copiarFila(*de.tabla, fila, r);
      completa = completa && esta;
    }
    r.Estado = true;
    if (almacen_.alLeer) almacen_.alLeer(r);
    return completa;
  }

  std::vector<forms::Field> camposDe(std::int32_t id) const final {
    Registro r;
    return leer(id, r) ? enlaces_.campos(r) : std::vector<forms::Field>();
  }

  Registro leerCampos() const {
    Registro partida = registro_;
    for (const auto& [campo, m] : enlaces_.textos) partida.*m = valorDe(*campo);
    for (const auto& [campo, m] : enlaces_.numeros)
      partida.*m = static_cast<std::int32_t>(text::toInteger(campo->text()).value_or(0));
    for (const auto& [campo, m] : enlaces_.bytes)
      partida.*m = static_cast<std::uint8_t>(text::toInteger(campo->text()).value_or(0));
    for (const auto& [campo, m] : enlaces_.fechas) partida.*m = valorDe(*campo, registro_.*m);
    for (const auto& [campo, m] : enlaces_.horas) partida.*m = valorDe(*campo, registro_.*m);
    for (const auto& [par, m] : enlaces_.municipios) partida.*m = par->valor();
    for (const auto& [lista, m] : enlaces_.listas) partida.*m = valorDe(*lista, registro_.*m);
    return partida;
  }
  bool GrabarDatosColeccion() final {
    Registro partida = leerCampos();
    ponerDatos(partida, datosTecleados(datosDe(partida)));
    // An item that only the list knows is still to be added, however often it is opened.
    if (esAlta() || partida.Estado) ponerOperacion(partida, Operacion);
    if (!esAlta()) return guardarEdicion(std::move(partida));
    std::vector<forms::Field> campos = enlaces_.campos(partida);
    if (!guardarAlta(std::move(partida))) return false;
    recordar(std::move(campos));
    return true;
  }
  bool guardarAlta(Registro partida) {
    if (desdeLista()) {
      moverFechaDelLibro();
      colPartidas->push_back(std::move(partida));
      return true;
    }
    Coleccion nueva{std::move(partida)};
    const Registro& intentada = nueva.front();
    // The entry, what belongs to it and the date of the book, which it may move, come together or
    // not at all.
    TransaccionSinVuelta transaccion(contexto_, *conBaseDatos);
    moverFechaDelLibro();
    grabar(nueva);
    const char* const sinGuardar = intentada.Estado ? trasAlta(intentada) : nullptr;
    transaccion.terminar();
    if (transaccion.deshecha()) return false;  // an error that has been told took all of it
    // An entry that reached the table must not be stored a second time, and one that got there
    // without all its rows is gone on with, or taken back when the dialog closes.
    DatosPartida d = datosDe(registro_);
    d.id = intentada.Estado ? 0 : datosDe(intentada).id;
    ponerDatos(registro_, d);
    if (!sinGuardar) return intentada.Estado;
    forms::warn(ui(), sinGuardar);
    registro_ = intentada;
    seguirCorrigiendo();
    return false;
  }
  bool guardarEdicion(Registro partida) {
    completarEdicion(partida);
    if (!antesDeCorregir(partida)) return false;
    if (!ComprobarCambios(partida)) return true;
    Coleccion corregida{std::move(partida)};
    if (!desdeLista()) return grabar(corregida);
    colPartidas->at(lngPosicion) = std::move(corregida.front());
    return true;
  }
  bool retirarAMedias() final {
    Coleccion aMedias{registro_};
    return almacen().retirarAMedias(aMedias);
  }
  Almacen<Registro> almacen() { return {contexto_, *conBaseDatos, almacen_}; }
  bool grabar(Coleccion& coleccion) {
    bool blnSalto = false;
    return almacen().grabar(coleccion, blnSalto);
  }

  bool repetida() final {
    const Registro partida = leerCampos();
    return repetidaEnColeccion(partida) || repetidaEnTabla(partida);
  }
  bool repetidaEnColeccion(const Registro& partida) const {
    Registro listada;
    return desdeLista() && !cadaOtra([&](std::size_t i) {
             return !mismosDatos(colPartidas->ver(i, listada), partida);
           });
  }
  bool repetidaEnTabla(const Registro& partida) {
    const std::string sql = sqlRepetida(partida);
    if (sql.empty()) return false;
    const std::string libros = librosDondeRepetida();
    if (libros.empty()) return false;
    store::Recordset filas = conBaseDatos->Execute(sql + " AND (" + libros + ")");
    for (; !filas.EOF_(); filas.MoveNext()) {
      const std::int64_t id = filas.integer(sacramento().clavePartida);
      if (id != datosDe(partida).id && !marcadaParaBorrar(id)) return true;
    }
    return false;
  }

  const DescripcionAlmacen<Registro>& almacen_;
};

}  // namespace fidaleon
