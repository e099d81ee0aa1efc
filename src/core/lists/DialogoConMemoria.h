#pragma once

#include <deque>
#include <set>
#include <string>
#include <vector>

#include "core/dialogs/Dialogo.h"
#include "core/lists/Memoria.h"
#include "core/lists/ParProvinciaPoblacion.h"

namespace fidaleon {

/// A dialog in which records are written one after the other: Enter goes from field to field where
/// the user wants it, texts are offered from what has been written, F4 takes from the record
/// before, and what can only be one is chosen.
class DialogoConMemoria : public Dialogo {
 public:
  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;

  /// From the record that was stored last at this desk, or else from the last one there is. The
  /// page leaves out what is of each alone, and what the user has written.
  void takeFormer(forms::Control& field, bool page) override;
  bool workBeside() override;

 protected:
  DialogoConMemoria(Contexto& contexto, std::string nombre);

  /// Offers while one types what fields of this kind have held.
  void ofrecer(forms::TextBox& campo, Voz voz);
  /// Hardly the same in two records: taken over alone, never with its page.
  void deCadaUno(const forms::Control& campo) { deCadaUno_.insert(&campo); }
  /// Chooses the only line of a list, as the user would; Enter stops there no more.
  void elegirUnico(forms::ComboBox& lista);
  /// The dialog loads: what other desks have written meanwhile is read too.
  void refrescarMemoria();
  /// These are the fields of the record that has been stored.
  void recordar(std::vector<forms::Field> campos) const;
  const std::vector<forms::Field>& anterior() const;
  /// The fields of the last record that is stored; asked for when none has been stored here.
  virtual const std::vector<forms::Field>& ultima() const;
  bool settled(const forms::Control& campo) const override;
  bool beginsSettled() const override;

  std::deque<ParProvinciaPoblacion> pares_;

 private:
  bool tomar(forms::Control& campo);
  bool sinTocar(const forms::Control& campo) const;

  std::set<const forms::Control*> deCadaUno_;
  std::set<const forms::Control*> unicos_;
  bool leeAlLado_ = true;  // what has been written, while the user writes
};

/// Null when there is none of that name.
const forms::Field* buscarCampo(const std::vector<forms::Field>& campos, const std::string& nombre);

}  // namespace fidaleon
