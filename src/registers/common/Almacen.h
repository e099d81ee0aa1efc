#pragma once
// The store of the entries of a sacrament: its tables are described, what is done to them is one.

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/dialogs/Guard.h"
#include "core/statements/Columnas.h"
#include "core/statements/Sentencia.h"
#include "registers/allocation/ActualizacionFormato.h"
#include "registers/common/FormaPartida.h"
#include "registers/common/GuardarEntera.h"
#include "registers/common/Guiones.h"
#include "registers/common/Operacion.h"
#include "registers/common/PartidasListadas.h"
#include "store/Transaction.h"

namespace fidaleon {

/// What the store has to know of a sacrament.
template <class Registro>
struct DescripcionAlmacen {
  const FormaPartida& forma;
  /// The entry's own row, as inserted and as updated.
  const Tabla<Registro>& partida;
  const Tabla<Registro>& partidaAlActualizar;
  /// Further rows of its own; the first column of each holds the entry's key.
  std::span<const Tabla<Registro>* const> propias;
  /// Rows that are found by keys in its own one, most of them shared with others.
  std::span<const Tabla<Registro>* const> compartidas = {};

  std::int32_t Registro::*id;
  bool Registro::*anulada;
  std::int32_t (*libro)(const Registro&);  // 0 for a request
  /// Empty in an item of a list until all columns have been read.
  std::string Registro::*completa;

  /// What a list reads of an entry: its key, folio, number, names, day and mark of annulment, in
  /// the order of the grid of a book.
  const Tabla<Registro>& lista;
  std::string (*sqlLista)(std::int32_t libro);
  std::string (*sqlEntera)(std::int32_t libro, std::int32_t id);
  /// The columns of sqlEntera bear the names of the properties.
  bool conAlias = false;

  /// What a draft has to keep of the record beside columns, key and Estado.
  std::span<const std::pair<const char*, std::int32_t Registro::*>> claves = {};
  std::span<const std::pair<const char*, bool Registro::*>> signos = {};

  // Names under which errors are reported, where they are not like those of the other sacraments.
  const char* procCompletar = nullptr;
  const char* procGrabar = nullptr;
  const char* procAnular = nullptr;
  /// A list that cannot be read is told of in these words instead.
  const char* avisoCargar = nullptr;

  // What a sacrament does its own way, where there is anything of the kind.

  /// Inserts the rows it shares and gives the record their keys, before its own row.
  void (*insertarCompartidas)(FDAPI::Conexion&, Registro&) = nullptr;
  /// They stay when its own row cannot be inserted.
  bool compartidasQuedan = false;
  /// Finds the row inserted last, its key first.
  PlantillaSql sqlUltima = "SELECT MAX({IDPartida}) AS ID FROM {Partidas}";
  /// Prepares a record that a former try has left half-stored. `fila`: the row that is there.
  void (*retomar)(Registro&, const store::Recordset& fila) = nullptr;
  /// Writes the rows it shares, before its own.
  void (*actualizarCompartidas)(FDAPI::Conexion&, const Registro&) = nullptr;
  /// Completes a record whose columns and keys are all known.
  void (*alLeer)(Registro&) = nullptr;
  /// What waits with an entry that a list adds until it has a key, empty when nothing does; and how
  /// it is stored then.
  std::string Registro::*enEspera = nullptr;
  void (*guardarEnEspera)(FDAPI::Conexion&, const Registro&) = nullptr;
  const char* procEnEspera = nullptr;

  template <class Hacer>
  void cadaTabla(Hacer&& hacer) const {
    hacer(partida);
    for (const auto tablas : {propias, compartidas})
      for (const Tabla<Registro>* tabla : tablas) hacer(*tabla);
  }
  /// Copies the row of sqlEntera on which `fila` stands.
  void copiar(const store::Recordset& fila, Registro& r) const {
    cadaTabla([&](const Tabla<Registro>& t) { copiarFila(t, fila, r, conAlias); });
    r.*id = static_cast<std::int32_t>(fila.integer(forma.sacramento.clavePartida));
    if (alLeer) alLeer(r);
  }
};

/// Gives dashes to the texts of the record that say nothing.
template <class Registro>
void rellenarGuiones(const DescripcionAlmacen<Registro>& d, Registro& r) {
  d.cadaTabla([&](const Tabla<Registro>& tabla) {
    for (const Columna<Registro>& c : tabla.columnas)
      if (const auto* texto = std::get_if<std::string Registro::*>(&c.miembro))
        if (c.cita == Cita::Texto) r.** texto = oGuiones(r.**texto);
  });
}

/// Inserts the entry's own row; the record takes its key.
template <class Registro>
void insertarPropia(FDAPI::Conexion& conexion, const DescripcionAlmacen<Registro>& d, Registro& r) {
  conexion.Execute(sqlInsertar(d.partida, r));
  r.*d.id = static_cast<std::int32_t>(
      conexion.Execute(sentencia(d.forma.sacramento, d.sqlUltima)).Fields(0).Value().integer());
  if (d.alLeer) d.alLeer(r);
}

/// Inserts an entry with all its rows, for whoever fills a register without its user: no
/// transaction of its own, no word to anybody. Throws store::Error.
template <class Registro>
void insertarPartida(FDAPI::Conexion& conexion, const DescripcionAlmacen<Registro>& d,
                     Registro& r) {
  if (d.insertarCompartidas) d.insertarCompartidas(conexion, r);
  insertarPropia(conexion, d, r);
  for (const Tabla<Registro>* tabla : d.propias) conexion.Execute(sqlInsertar(*tabla, r));
}

/// Carries the records of one sacrament to and from its tables. Each operation reports its errors
/// to the user and answers whether it ran through. The caller holds the locks: new keys are read
/// back as the highest ones, which is safe with a single writer only.
template <class Registro>
class Almacen {
 public:
  using Coleccion = std::vector<Registro>;

  Almacen(Contexto& contexto, FDAPI::Conexion& conexion, const DescripcionAlmacen<Registro>& d)
      : contexto_(contexto), conexion_(conexion), d_(d) {}

  /// The entries of a book in the order of their positions, with the columns of the list. `result`:
  /// a Coleccion or a PartidasListadas.
  template <class Lista>
  bool cargar(std::int32_t lngLibro, Lista& result) {
    result = {};
    if (!d_.avisoCargar)
      return guardado(nombre("GrabarBasedatosColeccion"), [&] { leerLista(lngLibro, result); });
    try {
      leerLista(lngLibro, result);
      return true;
    } catch (const std::exception&) {
      forms::warn(contexto_.ui(), d_.avisoCargar);
      return false;
    }
  }

  /// Fills an item with all its columns; false when the entry has gone.
  bool completar(std::int32_t lngLibro, std::int32_t id, Registro& item) {
    bool encontrada = false;
    guardado(nombre("ActualizarColeccion", d_.procCompletar), [&] {
      const store::Recordset fila = conexion_.Execute(d_.sqlEntera(lngLibro, id));
      encontrada = !fila.EOF_();
      if (encontrada) d_.copiar(fila, item);
    });
    return encontrada;
  }

  /// Does to the tables what each item says, each in one transaction. An item that went through is
  /// marked as done, so that a second call after a failure stores nothing twice. `blnSalto`: an old
  /// book's next free position is not the one after its last.
  template <class Lista>
  bool grabar(Lista& coleccion, bool& blnSalto) {
    const forms::Hourglass reloj(contexto_.ui());
    const std::string procedimiento = nombre("GrabarColeccionBaseDatos", d_.procGrabar);
    contadores_.reset();
    return cadaTocada(coleccion, [&](Registro& item) {
      return !pendiente(item) || grabarEntera(procedimiento, item, blnSalto);
    });
  }

  /// Deletes the items that reached the tables without all their rows and were not stored since.
  template <class Lista>
  bool retirarAMedias(Lista& coleccion) {
    bool retiradas = true;
    cadaTocada(coleccion, [&](Registro& item) {
      if (item.Estado || item.*d_.id == 0) return true;
      ponerOperacion(item, FDAPI::cCOperacion::Borrar);
      bool blnSalto = false;
      retiradas = grabarEntera("RetirarAMedias", item, blnSalto) && retiradas;
      return true;
    });
    return retiradas;
  }

  /// Inserts the entry with all its rows; the record takes the new keys. A record that has its key
  /// already, since a former try got as far as that, gets the rows that it lacks and the others
  /// updated: tried again, nothing is stored twice.
  bool alta(Registro& r) {
    const bool empezada = retomada(r);
    if (empezada && !actualizar(r)) return false;
    return guardado(nombre("AltaPartida"), [&] {
      if (!empezada) insertar(r);
      for (const Tabla<Registro>* tabla : d_.propias)
        if (!empezada || !hayFila(*tabla, r.*d_.id)) conexion_.Execute(sqlInsertar(*tabla, r));
    });
  }

  bool actualizar(const Registro& r) {
    return guardado(nombre("ActualizarPartida"), [&] {
      const std::string id = std::to_string(r.*d_.id);
      if (d_.actualizarCompartidas) d_.actualizarCompartidas(conexion_, r);
      conexion_.Execute(sqlActualizar(d_.partidaAlActualizar, r) +
                        sentencia(s(), " WHERE {IDPartida} = ") + id);
      for (const Tabla<Registro>* tabla : d_.propias)
        conexion_.Execute(sqlActualizar(*tabla, r) + " WHERE " + tabla->columnas[0].nombre + "=" +
                          id);
    });
  }

  /// Deletes the entry with those of its rows that no other uses, and sets back the counters of its
  /// book.
  bool borrar(std::int32_t id) {
    const forms::Hourglass reloj(contexto_.ui());
    return guardado(nombre("BorrarPartida"),
                    [&] { borrarPartida(conexion_, d_.forma, id, Compartidas::Respetar); });
  }

  /// Sets the counters of the entry's old book anew.
  bool formato(const Registro& r, bool& blnSalto) {
    return guardado(nombre("ActualizacionFormato"),
                    [&] { actualizacionFormato(conexion_, s(), d_.libro(r), blnSalto); });
  }

  bool anular(std::int32_t id) {
    return guardado(nombre("AnularDesanularPartida", d_.procAnular), [&] {
      const std::string clave = std::to_string(id);
      const store::Recordset fila = conexion_.Execute(
          sentencia(s(), "SELECT Anulada FROM {Partidas} WHERE {IDPartida}=") + clave);
      if (fila.EOF_()) return;
      conexion_.Execute(sentencia(s(), "UPDATE {Partidas} SET Anulada = ") +
                        (fila.flag("Anulada") ? "0" : "1") + sentencia(s(), " WHERE {IDPartida}=") +
                        clave);
    });
  }

 private:
  const Sacramento& s() const { return d_.forma.sacramento; }
  std::string nombre(const char* operacion, const char* irregular = nullptr) const {
    return irregular ? irregular : std::string(operacion) + s().palabra;
  }
  template <class Body>
  bool guardado(const std::string& procedimiento, Body&& body) {
    return guarded(contexto_, "cBaseDatos", procedimiento, std::forward<Body>(body));
  }

  template <class Lista>
  void leerLista(std::int32_t lngLibro, Lista& result) {
    const forms::Hourglass reloj(contexto_.ui());
    const auto cuantas = static_cast<std::size_t>(
        conexion_
            .Execute(
                sentencia(s(), "SELECT COUNT({IDPartida}) AS N FROM {Partidas} WHERE CodLibro=") +
                std::to_string(lngLibro))
            .integer("N"));
    store::Recordset filas = conexion_.Execute(d_.sqlLista(lngLibro));
    const CopiaDeFilas<Registro> copia(d_.lista, filas);
    if constexpr (std::is_same_v<Lista, Coleccion>) {
      // Records are large: a list that grows while it is read would move all of them.
      result.reserve(cuantas);
      for (; !filas.EOF_(); filas.MoveNext()) {
        copia.a(result.emplace_back());
        result.back().Estado = true;
      }
    } else {
      result.empezar(d_.lista.columnas, cuantas);
      for (; !filas.EOF_(); filas.MoveNext()) result.fila(filas, copia.lugares());
    }
  }
  template <class Hacer>
  static bool cadaTocada(Coleccion& coleccion, Hacer&& hacer) {
    return std::all_of(coleccion.begin(), coleccion.end(), hacer);
  }
  template <class Hacer>
  static bool cadaTocada(PartidasListadas<Registro>& lista, Hacer&& hacer) {
    return lista.cadaTocada(hacer);
  }

  bool pendiente(const Registro& item) const {
    using enum FDAPI::cCOperacion;
    const FDAPI::cCOperacion operacion = operacionDe(item);
    if (!item.Estado) return operacion != Borrar || item.*d_.id != 0;
    return operacion == Borrar || operacion == EDITAR || operacion == EDITARSOLICITUD;
  }

  bool grabarEntera(const std::string& procedimiento, Registro& item, bool& blnSalto) {
    const bool borrar = operacionDe(item) == FDAPI::cCOperacion::Borrar;
    return guardarEntera(contexto_, conexion_, procedimiento, item,
                         borrar ? store::Removes::Yes : store::Removes::No,
                         [&](Registro& r) { return grabarUna(r, blnSalto); });
  }

  bool grabarUna(Registro& r, bool& blnSalto) {
    const bool borrar = operacionDe(r) == FDAPI::cCOperacion::Borrar;
    if (r.Estado || borrar) contadores_.reset();
    if (r.Estado) {
      if (borrar ? !this->borrar(r.*d_.id) : !actualizar(r)) return false;
    } else if (borrar) {
      // It has a key when a former try stored it without all its rows.
      if (aMedias(r.*d_.id) && !this->borrar(r.*d_.id)) return false;
    } else {
      return grabarAlta(r, blnSalto);
    }
    if (borrar) r.*d_.id = 0;
    marcarHecha(r, !borrar);
    return borrar || guardarEnEspera(r);
  }

  bool grabarAlta(Registro& r, bool& blnSalto) {
    const bool antiguo = operacionDe(r) == FDAPI::cCOperacion::ANTIGUA || enLibroAntiguo(r);
    if (!alta(r)) return false;
    marcarHecha(r, true);
    return (!antiguo || contar(r, blnSalto)) && guardarEnEspera(r);
  }

  /// Of many entries that are stored together the first alone walks through the book.
  bool contar(const Registro& r, bool& blnSalto) {
    return guardado(nombre("ActualizacionFormato"), [&] {
      if (contadores_ && contadores_->libro() == d_.libro(r))
        contadores_->sumar(posicionDe(r));
      else
        contadores_.emplace(conexion_, s(), d_.libro(r));
      contadores_->actualizar(blnSalto);
    });
  }
  Posicion posicionDe(const Registro& r) const {
    const auto listadas = d_.lista.columnas;
    return {text::toInteger(comoNumero(valorTexto(r, listadas[LISTADO_FOLIO]))).value_or(0),
            valorTexto(r, listadas[LISTADO_NUMERO])};
  }

  /// The entry counts as changed until what waits is stored: nobody is to lose it by cancelling.
  bool guardarEnEspera(Registro& r) {
    if (!d_.enEspera || (r.*d_.enEspera).empty()) return true;
    const bool hecho = guardado(d_.procEnEspera, [&] { d_.guardarEnEspera(conexion_, r); });
    if (hecho)
      (r.*d_.enEspera).clear();
    else
      ponerOperacion(r, FDAPI::cCOperacion::EDITAR);
    return hecho;
  }

  static void marcarHecha(Registro& r, bool estado) {
    r.Estado = estado;
    if (estado) ponerOperacion(r, {});
  }

  bool enLibroAntiguo(const Registro& r) {
    const std::int32_t libro = d_.libro(r);
    return libro != 0 &&
           !conexion_
                .Execute(sentencia(s(), "SELECT nuevo FROM {Libros} WHERE {idlibro}=") +
                         std::to_string(libro))
                .flag("nuevo");
  }

  void insertar(Registro& r) {
    if (d_.compartidasQuedan) {
      TransaccionSinVuelta juntas(contexto_, conexion_);
      d_.insertarCompartidas(conexion_, r);
      juntas.terminar();
      return insertarPropia(conexion_, d_, r);
    }
    store::Transaction transaccion(conexion_);
    if (d_.insertarCompartidas) d_.insertarCompartidas(conexion_, r);
    insertarPropia(conexion_, d_, r);
    transaccion.commit();
  }

  bool hayFila(const Tabla<Registro>& tabla, std::int32_t id) {
    const std::string clave = tabla.columnas[0].nombre;
    return !conexion_
                .Execute("SELECT " + clave + " FROM " + tabla.nombre + " WHERE " + clave + "=" +
                         std::to_string(id))
                .EOF_();
  }

  /// Whether the entry with this key is what a failed storing left: there, and without all its
  /// rows. It may have been completed or removed since, when a draft brought the key back.
  bool aMedias(std::int32_t id) {
    if (id == 0 || conexion_.Execute(sqlPartida(s(), id)).EOF_()) return false;
    for (const Tabla<Registro>* tabla : d_.propias)
      if (!hayFila(*tabla, id)) return true;
    return false;
  }

  bool retomada(Registro& r) {
    if (!aMedias(r.*d_.id)) return false;
    if (d_.retomar) d_.retomar(r, conexion_.Execute(sqlPartida(s(), r.*d_.id)));
    return true;
  }

  Contexto& contexto_;
  FDAPI::Conexion& conexion_;
  const DescripcionAlmacen<Registro>& d_;
  std::optional<ActualizacionFormato> contadores_;  // of the book that grabar() adds to
};

}  // namespace fidaleon
