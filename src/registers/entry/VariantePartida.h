#pragma once

#include <string>
#include <vector>

#include "core/contract/Sacramento.h"
#include "registers/common/LimiteNotas.h"

namespace fidaleon {

/// How the entry dialog of one sacrament differs from its sisters, fields and record aside.
struct VariantePartida {
  const Sacramento& sacramento;
  std::vector<std::string> pestanas;  // the first one is that of the book
  /// Places of the two lists among those of the dialog.
  int listaInstitucion;
  int listaLibro;
  /// Without the position, which follows as soon as there is one.
  struct Titulos {
    const char* nueva;
    const char* antigua;
    const char* deNueva;
    const char* deAntigua;
    const char* solicitud;
    const char* deSolicitud;
    bool siempreConPosicion = false;  // also before a book is chosen
  } titulos;
  const char* tituloNumero;  // between folio and number
  const char* institucion;   // as the messages spell it

  /// Blanks are asked about before they become dashes, by operation.
  enum class Vacios { Callar, Textos, Todo };
  struct PreguntaVacios {
    const char* texto;
    Vacios nueva;
    Vacios antigua;
    Vacios edicion;
    Vacios solicitud;
    bool notas;   // blank marginal notes count
    bool unaVez;  // a Yes holds as long as the dialog is open
  } vacios;

  /// What cannot be changed of an entry that is annulled.
  enum class AlAnular { Posicion, TodoMenosNotas, Todo };
  AlAnular alAnular;
  bool anularAntigua;  // the button is there for an old entry being added
  bool anularEdicion;  // and for one being corrected
  bool notasEnNueva;   // a new entry of a new book has marginal notes
  bool notasEnSolicitud = true;
  /// Surnames stand for unknown parents also where an entry is corrected.
  bool progenitorAlCorregir = false;
  const char* avisoNotas = AVISO_NOTAS;
  /// A folio typed for an old book may not pass the limit either.
  bool limiteAlTeclear = false;

  /// When the date of an old book follows that of an entry added to it.
  enum class FechaDelLibro { Adelanta, AdelantaLaPrimera, AtrasaLaPrimera };
  FechaDelLibro fechaDelLibro;

  /// Where an entry may stand already: in any open new book and in old ones that are no newer, or
  /// in the books of the same kind of its institution. Requests are looked for in the latter alone.
  enum class DondeRepetida { EnTodas, EnSuInstitucion };
  DondeRepetida dondeRepetida;

  // Under which errors in the look-up are reported.
  const char* procBuscar;
  const char* procImportar;

  bool fijaInstitucionDeSolicitud;  // of a request being corrected
  /// Shown when rows of the entry are missing.
  const char* cargaIncompleta;
  bool avisaCargaFallida;  // the same when it could not be read at all
};

}  // namespace fidaleon
