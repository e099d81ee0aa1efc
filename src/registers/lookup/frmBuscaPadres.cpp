#include "registers/lookup/frmBuscaPadres.h"

#include "core/lists/cIListas.h"
#include "registers/lookup/Importacion.h"
#include "registers/lookup/OrigenBusqueda.h"
#include "registers/lookup/frmDetallePadres.h"

namespace fidaleon {

frmBuscaPadres::frmBuscaPadres(Contexto& contexto)
    : Dialogo(contexto, "frmBuscaPadres"),
      msgBusquedaPadres(*this, "msgBusquedaPadres"),
      msgBusquedaBautizado(*this, "msgBusquedaBautizado"),
      cmdBoton(*this, "cmdBoton") {
  cmdBoton.add(ACEPTAR, "&Aceptar").setDefault(true);
  cmdBoton.add(CANCELAR, "&Cancelar").setCancel(true);
  cmdBoton.add(DETALLES, "&DETALLES");
  cmdBoton[ACEPTAR].onClick = [this] { aceptar(); };
  cmdBoton[CANCELAR].onClick = [this] { Unload(); };
  cmdBoton[DETALLES].onClick = [this] { detalles(); };
  for (forms::Grid* grid : {&msgBusquedaPadres, &msgBusquedaBautizado})
    grid->onDblClick = [this] { aceptar(); };
  setDisposable();
  setLayout(forms::column(
      {forms::item(msgBusquedaPadres), forms::item(msgBusquedaBautizado),
       forms::buttons({&cmdBoton[DETALLES], &cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
}

forms::Grid& frmBuscaPadres::rejilla() {
  return origen_->familia ? msgBusquedaPadres : msgBusquedaBautizado;
}

void frmBuscaPadres::Form_Load() {
  origen_ = origenBusqueda(Origen);
  if (!origen_) return Unload();
  msgBusquedaPadres.setVisible(origen_->familia);
  msgBusquedaBautizado.setVisible(!origen_->familia);
  setCaption(origen_->titulo + strApellidos);
  const bool cargada = procedimiento(origen_->nombreCargar, [this] {
    cIListas listas(contexto_);
    (listas.*origen_->configurar)(rejilla());
    origen_->familia ? cargarPadres() : cargarBautizados();
  });
  if (!cargada) return Unload();
  if (rejilla().rowCount() == 0) return Unload();
  rejilla().setRow(1);
}

void frmBuscaPadres::Form_Unload() {
  if (!origen_) return;
  procedimiento("Form_Unload", [this] {
    contexto_.entorno.support.create_cIListas()->SaveGrid(rejilla(),
                                                          cIListas(contexto_).ruta(origen_->ruta));
  });
}

void frmBuscaPadres::cargarPadres() {
  const auto nombres = [this](const std::string& sql, std::vector<std::string>& celdas) {
    const store::Recordset fila = conBaseDatos->Execute(sql);
    for (const char* columna : {"Nombre", "PrimerApellido", "SegundoApellido"})
      celdas.push_back(fila.EOF_() ? std::string() : fila.text(columna));
    return !fila.EOF_();
  };
  msgBusquedaPadres.beginUpdate();
  msgBusquedaPadres.clearRows();
  for (const FilaBusqueda& fila : filas) {
    std::vector<std::string> celdas;
    const bool padre = nombres(
        "SELECT Nombre, PrimerApellido, SegundoApellido, IDPadres FROM Bautismo_Padres "
        "WHERE IDPadres = " +
            std::to_string(fila.CodPadres),
        celdas);
    const bool madre = nombres(
        "SELECT Nombre, PrimerApellido, SegundoApellido, IDMadres FROM Bautismo_Madres "
        "WHERE IDMadres = " +
            std::to_string(fila.CodMadres),
        celdas);
    const bool matrimonio =
        !conBaseDatos
             ->Execute("SELECT IDMatrimonio FROM Bautismo_Matrimonio WHERE IDMatrimonio = " +
                       std::to_string(fila.CodMatrimonio))
             .EOF_();
    if (padre && madre && matrimonio) msgBusquedaPadres.addRow(celdas, fila.IDBautismo);
  }
  msgBusquedaPadres.endUpdate();
}

void frmBuscaPadres::cargarBautizados() {
  const auto fidaleon = contexto_.fidaleon();
  msgBusquedaBautizado.beginUpdate();
  msgBusquedaBautizado.clearRows();
  for (const FilaBusqueda& f : filas)
    msgBusquedaBautizado.addRow(
        {f.Nombre, f.PrimerApellido, f.SegundoApellido, fidaleon->stringdate(f.FechaBautismo)},
        f.IDBautismo);
  msgBusquedaBautizado.endUpdate();
}

void frmBuscaPadres::aceptar() {
  const int elegida = rejilla().row();
  if (elegida == 0) return Unload();
  const char* nombre = lngPersona == 0 ? origen_->nombreImportar : origen_->nombreImportarOtra;
  blnAceptado = procedimiento(nombre, [&] {
    const auto id = static_cast<std::int32_t>(rejilla().rowKey(elegida));
    if (origen_->familia)
      importado = leerFamilia(*conBaseDatos, id);
    else
      bautizado = leerBautizado(*conBaseDatos, id);
  });
  Unload();
}

void frmBuscaPadres::detalles() {
  if (rejilla().row() == 0) return;
  frmDetallePadres detalle(contexto_);
  detalle.conBaseDatos = conBaseDatos;
  detalle.lngID = static_cast<std::int32_t>(rejilla().rowKey(rejilla().row()));
  detalle.Origen = Origen;
  detalle.Show();
  setFocus(rejilla());
}

}  // namespace fidaleon
