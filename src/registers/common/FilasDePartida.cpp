#include "registers/common/FilasDePartida.h"

#include <span>

namespace fidaleon {

namespace {

struct Fila {
  const char* tabla;
  const char* clave;
  const char* enlace;  // column of the entry
};

// In the order in which they go.
constexpr Fila DE_BAUTISMO[] = {{"Bautismo_Madres", "idmadres", "codmadres"},
                                {"bautismo_padres", "idpadres", "codpadres"},
                                {"bautismo_matrimonio", "idmatrimonio", "codmatrimonio"},
                                {"bautismo_hijo", "codbautismo", "idbautismo"},
                                {"bautismo", "idbautismo", "idbautismo"}};
constexpr Fila DE_CONFIRMACION[] = {{"confirmacion", "idconfirmacion", "idconfirmacion"},
                                    {"confirmacion_datos", "codconfirmacion", "idconfirmacion"},
                                    {"confirmacion_bautismo", "codconfirmacion", "idconfirmacion"}};
constexpr Fila DE_DEFUNCION[] = {{"Defuncion", "IDDifunto", "IDDifunto"},
                                 {"Defuncion_datos", "CodDifunto", "IDDifunto"}};

std::span<const Fila> filasDe(const Sacramento& s) {
  if (&s == &BAUTISMO) return DE_BAUTISMO;
  if (&s == &CONFIRMACION) return DE_CONFIRMACION;
  if (&s == &DEFUNCION) return DE_DEFUNCION;
  return {};
}

}  // namespace

void borrarFilas(FDAPI::Conexion& conexion, const Sacramento& sacramento,
                 const store::Recordset& partida) {
  for (const Fila& f : filasDe(sacramento))
    conexion.Execute(std::string("DELETE * FROM ") + f.tabla + " WHERE " + f.clave + "=" +
                     partida.text(f.enlace));
}

}  // namespace fidaleon
