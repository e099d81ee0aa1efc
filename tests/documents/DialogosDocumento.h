#pragma once
// The dialogs that a document opens by itself, by the name of its member or operation, and how
// they are answered in tests: Pedro Ruiz signs, and the date is 3 November 2026.

#include <string>

#include "forms/ScriptedUser.h"

namespace fidaleon::tests {

inline void esperarFecha(forms::ScriptedUser& user) {
  user.expectForm("frmInfFecha", [](forms::FormDriver& u) {
    u.type("adtpFecha", "03/11/2026");
    u.click("cmdBoton(0)");
  });
}

/// Of a marriage they belong to the loader, which is not reached where there is nothing to print.
inline void esperarDialogos(forms::ScriptedUser& user, const std::string& documento,
                            bool hayQueImprimir = true) {
  const auto es = [&](const char* palabra) { return documento.find(palabra) != std::string::npos; };
  const bool certificado = hayQueImprimir && es("Certificado") && es("Matrimonio");
  if (certificado || documento.starts_with("ImprimirPartidaDefuncion") ||
      documento.starts_with("InformePartidaDefuncion"))
    user.expectForm("frmEncargado", [](forms::FormDriver& u) {
      u.choose("cboEncargado", "Pedro Ruiz");
      u.type("adtpFecha", "03/11/2026");
      u.click("cmdBoton(0)");
    });
  if (es("Formato3"))
    user.expectForm("frmInfFormato3", [](forms::FormDriver& u) {
      u.click("chkOpcion(1)");
      u.click("cmdBoton(0)");
    });
  if (!hayQueImprimir) return;
  if (es("Exhorto")) {
    user.expectForm("frmInfExhorto", [](forms::FormDriver& u) { u.click("cmdBoton(0)"); });
    user.expectMessage("¿Desea Guardar los datos en la Solicitud de Matrimonio?",
                       forms::Answer::No);
  }
  for (const char* fechado :
       {"Exhorto", "NotificacionMatrimonio", "VolanteMatrimonio", "ComunicacionMatrimonio"})
    if (es(fechado)) esperarFecha(user);
}

}  // namespace fidaleon::tests
