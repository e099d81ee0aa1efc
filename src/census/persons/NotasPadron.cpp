// The personal notes of a census person, kept until the dialog is accepted.

#include <algorithm>

#include "census/persons/frmPadron.h"
#include "census/search/frmPadronNotas.h"
#include "core/lists/Rejilla.h"
#include "core/lists/cIListas.h"
#include "core/statements/Apunte.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

const Rejilla& rejillaNotas() {
  static const Rejilla r{"Grids\\Padron\\Padron", {{"Nombre", 2250}, {"Descripción"}}};
  return r;
}

}  // namespace

void frmPadron::ConfigGridNotasPersonales() {
  cIListas(contexto_).ConfigGrid(msgNotas, rejillaNotas(), "ConfigGridNotasPersonales",
                                 "frmPadron");
}

void frmPadron::guardarAnchos() {
  cIListas(contexto_).SaveGrid(msgNotas, rejillaNotas());
}

void frmPadron::CargaGridNotasPersonales() {
  procedimiento("CargaGridNotasPersonales", [this] {
    const int fila = msgNotas.row();
    msgNotas.beginUpdate();
    msgNotas.clearRows();
    for (std::size_t i = 0; i < ficha_.notas.size(); ++i) {
      const cPadronNotas& nota = ficha_.notas[i];
      if (nota.Operacion == cCOperacion::Borrar) continue;
      msgNotas.addRow({nota.Nombre, recortada(nota.Descripcion)}, static_cast<std::int64_t>(i));
    }
    msgNotas.endUpdate();
    msgNotas.setRow(std::min(fila, msgNotas.rowCount()));
  });
}

std::string frmPadron::ownWork() const {
  std::string texto;
  for (const cPadronNotas& nota : ficha_.notas) {
    if (nota.Operacion == cCOperacion{}) continue;
    Apunte apunte;
    const bool quitada = nota.Operacion == cCOperacion::Borrar;
    apunte.poner("Nota", std::string(quitada ? "quitada" : nota.Estado ? "cambiada" : "nueva"));
    apunte.poner("Nombre", nota.Nombre);
    apunte.poner("Descripción", nota.Descripcion);
    texto += apunte.texto();
  }
  return texto;
}

// A stored note may have been changed since, or taken away: only new ones come back by themselves.
std::string frmPadron::putBackOwnWork(const std::string& work) {
  std::string resto;
  for (const Apunte& apunte : Apunte::todos(work)) {
    if (apunte.valor("Nota") != "nueva") {
      resto += apunte.texto();
      continue;
    }
    cPadronNotas nota;
    nota.Operacion = cCOperacion::ANADIR;
    nota.Nombre = apunte.valor("Nombre");
    nota.Descripcion = apunte.valor("Descripción");
    ficha_.notas.push_back(std::move(nota));
  }
  CargaGridNotasPersonales();
  return resto;
}

void frmPadron::cmdNotas_Click(BotonNota boton) {
  procedimiento("cmdNotas_Click", [&] {
    if (boton == AGREGAR) return editarNota(cCOperacion::ANADIR, -1);
    if (msgNotas.row() == 0) return ui().beep();
    const int posicion = static_cast<int>(msgNotas.rowKey(msgNotas.row()));
    boton == MODIFICAR ? editarNota(cCOperacion::EDITAR, posicion) : quitarNota(posicion);
  });
}

void frmPadron::editarNota(cCOperacion operacion, int posicion) {
  frmPadronNotas dialogo(contexto_);
  dialogo.Operacion = operacion;
  dialogo.colNotas = &ficha_.notas;
  dialogo.posicion = posicion;
  dialogo.refrescar = [this] { CargaGridNotasPersonales(); };
  dialogo.Show();
}

void frmPadron::quitarNota(int posicion) {
  cPadronNotas& nota = ficha_.notas.at(static_cast<std::size_t>(posicion));
  if (nota.Estado)
    nota.Operacion = cCOperacion::Borrar;
  else
    ficha_.notas.erase(ficha_.notas.begin() + posicion);
  CargaGridNotasPersonales();
}

}  // namespace fidaleon
