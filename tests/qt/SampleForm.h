#pragma once

#include <gmock/gmock.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <map>
#include <string>
#include <vector>

#include "forms/ScriptedUser.h"
#include "qt/FormDialog.h"

namespace fidaleon::qt {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// A dialog of every kind of control, that logs what happens to it.
class SampleForm : public forms::Form {
 public:
  explicit SampleForm(forms::UserInterface& ui);

  /// Handlers append to this.
  std::vector<std::string> log;
  /// Fields that refuse to be left by sending the focus back.
  std::map<std::string, bool> refuses;
  int forbiddenTab = -1;

  forms::ComboBox institution{*this, "cboInstitucion", "&Institución"};
  forms::Button addInstitution{*this, "cmdAgregarInstitucion", "Agregar Institución"};
  forms::TextBox folio{*this, "txtFolio", "Folio"};
  forms::TextBox number{*this, "txtNumero", "Número"};
  forms::TabStrip strip{*this, "mstFicha", {"Bautizado", "Padres y &padrinos", "Notas", "Avisos"}};

  forms::TextBox name{*this, "txtNombre", "Nombre"};
  forms::TextBox surname1{*this, "txtApellido1", "Primer apellido"};
  forms::TextBox surname2{*this, "txtApellido2", "Segundo apellido"};
  forms::ComboBox sex{*this, "cboSexo", "Sexo"};
  forms::DateField born{*this, "adtpNacimiento", "Fecha de nacimiento"};
  forms::TimeField hour{*this, "txtHora", "Hora"};
  forms::ComboBox province{*this, "cboProvincia", "Provincia"};
  forms::ComboBox town{*this, "cboMunicipio", "Municipio"};
  forms::TextBox locked{*this, "txtMinistro", "Ministro"};
  forms::TextBox disabled{*this, "txtRegistro", "Registro civil"};
  forms::ComboBox lockedList{*this, "cboBloqueado", "Diócesis"};
  forms::CheckBox legitimate{*this, "chkLegitimo", "Hijo legítimo"};
  forms::Label annulled{*this, "lblAnulada", "PARTIDA ANULADA"};
  forms::Frame kind{*this, "fraClase", "Clase de libro"};
  forms::OptionButton newBook{*this, "optNuevo", "Nuevo", "clase"};
  forms::OptionButton oldBook{*this, "optAntiguo", "Antiguo", "clase"};

  forms::Frame parents{*this, "fraPadres", "Padres"};
  std::vector<std::unique_ptr<forms::TextBox>> parentFields;
  forms::ListBox witnesses{*this, "lstTestigos", "Testigos"};
  forms::ListBox several{*this, "lstVarios", "Varios"};

  forms::TextBox notes{*this, "txtNotas", "Notas marginales"};
  forms::Grid entries{*this, "msgPartidas"};
  forms::Progress progress{*this, "prgAvance"};

  forms::Button accept{*this, "cmdAceptar", "ACEPTAR"};
  forms::Button cancel{*this, "cmdCancelar", "CANCELAR"};

 protected:
  void Form_Load() override;
  void Form_Unload() override { log.push_back("unload"); }

 private:
  void place();
  void listen();
};

}  // namespace fidaleon::qt
