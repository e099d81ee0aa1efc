#include "documents/frmInfActividad.h"

#include "core/dialogs/Guard.h"
#include "documents/CensoStatements.h"
#include "documents/cInformes.h"

namespace fidaleon {

namespace {

const char* titulo(FDAPI::cCOrigen modo) {
  switch (modo) {
    case FDAPI::cCOrigen::COLABORADOR:
      return "Informe de colaboradores";
    case FDAPI::cCOrigen::COLABORADOREXT:
      return "Informe de colaboradores (extendido)";
    default:
      return "Informe de actividades";
  }
}

ListaDoble::Textos textosListas() {
  ListaDoble::Textos textos;
  textos.ayudas = {"Agrega al informe lo marcado", "Agrega al informe todo lo disponible",
                   "Quita del informe lo marcado", "Quita del informe todo lo seleccionado"};
  textos.nadaQueElegir = "¡No existen elementos para agregar!";
  textos.nadaQueQuitar = "¡No existen elementos para quitar!";
  return textos;
}

/// The bar of the dialog where the rows of a report are counted.
class BarraProgreso : public FDAPI::cProgreso {
 public:
  explicit BarraProgreso(forms::Progress& barra) : barra_(barra) {}
  void Cargar(std::int64_t cuenta, const std::string& mensaje, int, int) override {
    barra_.Cargar(cuenta, mensaje);
  }
  void setValue(std::int64_t valor) override { barra_.setValue(valor); }

 private:
  forms::Progress& barra_;
};

/// A list that nobody sees: what is marked in those of the dialog is the user's affair.
struct ListaAparte : forms::Form {
  explicit ListaAparte(forms::UserInterface& ui) : Form(ui, "ListaAparte") {
    lista.setMultiSelect(true);
  }
  forms::ListBox lista{*this, "lista"};
};

}  // namespace

frmInfActividad::frmInfActividad(Contexto& contexto)
    : Dialogo(contexto, "frmInfActividad"),
      cboInstitucion(*this, "cboInstitucion", "INSTITUCIÓN:"),
      cboActividad(*this, "cboActividad", "ACTIVIDAD:"),
      chkSinActividad(*this, "chkSinActividad", "Mostrar colaboradores sin actividad asociada"),
      fraListas(*this, "fraListas"),
      lstListas(*this, "lstListas"),
      cmdMover(*this, "cmdMover"),
      lblTodosGrupos(*this, "lblTodosGrupos",
                     "Si no selecciona ninguno, se imprimen todos los grupos de la actividad."),
      abpProgreso(*this, "abpProgreso"),
      cmdBoton(*this, "cmdBoton"),
      listas_(contexto, *this, lstListas.add(DISPONIBLES, "DISPONIBLES:"),
              lstListas.add(SELECCIONADAS, "SELECCIONADAS:"), cmdMover, textosListas()) {
  prepararControles();
}

void frmInfActividad::prepararControles() {
  cboInstitucion.setWidthChars(50);
  cboActividad.setWidthChars(50);
  cboInstitucion.onClick = [this] {
    procedimiento("cboInstitucion_Click()", [this] { cboInstitucion_Click(); });
  };
  // Nobody prints the groups that he could not see.
  cboActividad.onClick = [this] {
    if (!procedimiento("cboActividad_Click()", [this] { cboActividad_Click(); }))
      cboActividad.setListIndex(-1);
  };
  cmdBoton.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdBoton.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdBoton[ACEPTAR].onClick = [this] { procedimiento("cmdBoton_Click()", [this] { aceptar(); }); };
  cmdBoton[CANCELAR].onClick = [this] { Unload(); };
  setDisposable();
  setLayout(
      forms::column({forms::fields(1, {forms::item(cboInstitucion), forms::item(cboActividad)}),
                     forms::group(fraListas, {listas_.disposicion(), forms::item(lblTodosGrupos)}),
                     forms::item(chkSinActividad), forms::item(abpProgreso),
                     forms::buttons({&cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
}

void frmInfActividad::Form_Load() {
  setCaption(titulo(modo));
  fraListas.setCaption(deActividades() ? "INSTITUCIONES" : "GRUPOS");
  for (forms::Control* control : std::initializer_list<forms::Control*>{
           &cboInstitucion, &cboActividad, &chkSinActividad, &lblTodosGrupos})
    control->setVisible(!deActividades());
  procedimiento("Form_Load()", [this] { cargar(); });
}

void frmInfActividad::cargar() {
  contexto_.entorno.support.create_cIListas()->fillInstituciones(cboInstitucion, 0, *conFidaleon);
  if (deActividades()) listarInstituciones();
}

void frmInfActividad::listarInstituciones() {
  std::vector<ListaDoble::Elemento> instituciones;
  for (int i = 0; i < cboInstitucion.listCount(); ++i)
    instituciones.push_back({cboInstitucion.itemData(i), cboInstitucion.list(i)});
  listas_.llenar(std::move(instituciones));
}

void frmInfActividad::cboInstitucion_Click() {
  listas_.vaciar();
  cboActividad.clear();
  store::Recordset actividades =
      conFidaleon->Execute("SELECT IDActividad, Nombre FROM Actividad WHERE CodInstitucion=" +
                           std::to_string(cboInstitucion.data()));
  for (; !actividades.EOF_(); actividades.MoveNext())
    cboActividad.addItem(actividades.text("Nombre"), actividades.integer("IDActividad"));
}

void frmInfActividad::cboActividad_Click() {
  listas_.vaciar();
  store::Recordset registros =
      conFidaleon->Execute("SELECT IDGrupo, Nombre FROM Grupo WHERE CodActividad = " +
                           std::to_string(cboActividad.data()));
  std::vector<ListaDoble::Elemento> grupos;
  for (; !registros.EOF_(); registros.MoveNext())
    grupos.push_back({registros.integer("IDGrupo"), registros.text("Nombre")});
  listas_.llenar(std::move(grupos));
}

void frmInfActividad::aceptar() {
  if (!completo()) return;
  const forms::Hourglass hourglass(ui());
  const bool escrito = rellenar();
  if (escrito && !conInformes->Execute("SELECT Nombre FROM Informe_Colaboradores").EOF_())
    return Unload();
  abpProgreso.setValue(0);
  if (escrito)
    forms::warn(ui(), "¡No se ha encontrado ningún registro!", forms::MsgIcon::Information);
}

bool frmInfActividad::completo() {
  if (deActividades()) {
    if (lstListas[SELECCIONADAS].listCount() > 0) return true;
    forms::warn(ui(), "¡Debe seleccionar una institución de la lista!");
    setFocus(lstListas[DISPONIBLES]);
    return false;
  }
  if (cboInstitucion.listIndex() >= 0 && cboActividad.listIndex() >= 0) return true;
  forms::warn(ui(), "¡Debe seleccionar una actividad de la lista!");
  setFocus(cboInstitucion.listIndex() < 0 ? cboInstitucion : cboActividad);
  return false;
}

bool frmInfActividad::rellenar() {
  BarraProgreso progreso(abpProgreso);
  return deActividades() ? rellenarActividades(progreso) : rellenarColaboradores(progreso);
}

bool frmInfActividad::rellenarActividades(FDAPI::cProgreso& progreso) {
  store::Recordset grupos =
      conFidaleon->Execute(documents::sentenciaActividades(restriccion("IDInstitucion")));
  return cInformes(contexto_).RellenarInformeActividad(*conInformes, grupos, progreso);
}

bool frmInfActividad::rellenarColaboradores(FDAPI::cProgreso& progreso) {
  const auto institucion = static_cast<std::int32_t>(cboInstitucion.data());
  const auto actividad = static_cast<std::int32_t>(cboActividad.data());
  store::Recordset instituciones =
      conFidaleon->Execute(documents::sentenciaInstituciones(institucion));
  return cInformes(contexto_).RellenarInformeColaborador(
      *conFidaleon, *conInformes, instituciones,
      documents::sentenciaPersonas(actividad, restriccion("IDGrupo")), chkSinActividad.value(),
      progreso);
}

std::string frmInfActividad::restriccion(const char* columna) {
  ListaAparte elegidas(ui());
  for (const std::int64_t clave : listas_.seleccionadas())
    elegidas.lista.setSelected(elegidas.lista.addItem({}, clave), true);
  return contexto_.fidaleon()->sqlListbox(elegidas.lista, columna);
}

}  // namespace fidaleon
