// Where the fields of a marriage stand.

#include "registers/marriage/frmPartidaMatrimonio.h"

namespace fidaleon {

using forms::fields;
using forms::item;
using forms::LayoutNode;
using forms::Nodes;
using forms::page;

forms::Nodes frmPartidaMatrimonio::paginas() {
  Nodes paginas;
  for (const int c : CONTRAYENTES) {
    paginas.push_back(paginaPersonales(c));
    paginas.push_back(paginaSacramentales(c));
    paginas.push_back(paginaOtros(c));
  }
  paginas.push_back(paginaExpedientes());
  paginas.push_back(paginaCompromiso());
  paginas.push_back(page({fields(1, {en(NotasMarginales), en(Observaciones)})}));
  paginas.push_back(examenes_ ? examenes_->pagina() : page({}));
  return paginas;
}

LayoutNode frmPartidaMatrimonio::en(int texto, int columnas) {
  return item(txtPartida[texto], columnas);
}

LayoutNode frmPartidaMatrimonio::provincia(int lista) {
  return item(cboPartida[lista]);
}

LayoutNode frmPartidaMatrimonio::poblacion(int lista) {
  return item(cboPartida[lista + 1]);
}

LayoutNode frmPartidaMatrimonio::grupo(const char* titulo, int columnas, Nodes campos) {
  const int indice = static_cast<int>(fraMatrimonio.all().size());
  return forms::group(fraMatrimonio.add(indice, titulo), {fields(columnas, std::move(campos))});
}

LayoutNode frmPartidaMatrimonio::paginaPersonales(int c) {
  return page(
      {fields(3,
              {en(c + Nombre), en(c + PrimerApellido), en(c + SegundoApellido), en(c + DNI),
               item(adtpPartida[c + FechaNac]), en(c + Edad), provincia(c + ProvinciaNac),
               poblacion(c + ProvinciaNac), en(c + Nacionalidad), en(c + DiocesisNac),
               en(c + Profesion), en(c + SujetoDerecho), en(c + Religion), en(c + EstadoCivil, 2)}),
       fields(2, {en(c + NombrePadre), en(c + NombreMadre), en(c + Email), en(c + Telefono)}),
       forms::stretch()});
}

LayoutNode frmPartidaMatrimonio::paginaSacramentales(int c) {
  return page(
      {grupo("BAUTISMO:", 2,
             {item(adtpPartida[c + FechaBaut], 2), en(c + ParroquiaBaut), en(c + DiocesisBaut),
              provincia(c + ProvinciaBaut), poblacion(c + ProvinciaBaut)}),
       grupo("LIBRO DE BAUTISMO:", 3, {en(c + LibroBaut), en(c + FolioBaut), en(c + NumeroBaut)}),
       grupo("CONFIRMACIÓN:", 2,
             {item(adtpPartida[c + FechaConfirmacion], 2), provincia(c + ProvinciaConfirmacion),
              poblacion(c + ProvinciaConfirmacion)}),
       forms::stretch()});
}

LayoutNode frmPartidaMatrimonio::paginaOtros(int c) {
  return page(
      {grupo("DOMICILIO ACTUAL:", 2,
             {en(c + TResidenciaDomAct), en(c + DomicilioActual), provincia(c + ProvinciaActual),
              poblacion(c + ProvinciaActual)}),
       grupo("DOMICILIO ANTERIOR:", 2,
             {en(c + DomicilioAnterior, 2), provincia(c + ProvinciaAnterior),
              poblacion(c + ProvinciaAnterior)}),
       grupo("REGISTRO CIVIL:", 2,
             {en(c + MunicipioInscrito), en(c + NombreCivil), en(c + Tomo), en(c + Pagina)}),
       grupo("EXHORTO:", 3,
             {en(c + ParroquiaExhorto), en(c + PoblacionExhorto), en(c + DiocesisExhorto)}),
       forms::stretch()});
}

LayoutNode frmPartidaMatrimonio::paginaExpedientes() {
  Nodes grupos;
  for (const int otro : {0, 1}) {
    const int t = otro * OtroTestigo;
    const int lugar = ProvinciaTestigo + 2 * otro;
    grupos.push_back(grupo(
        otro == 0 ? "PRIMER TESTIGO:" : "SEGUNDO TESTIGO:", 3,
        {en(t + NombreTestigo), en(t + PrimerApellidoTestigo), en(t + SegundoApellidoTestigo),
         en(t + DNITestigo), en(t + DomicilioTestigo, 2), provincia(lugar), poblacion(lugar)}));
  }
  grupos.push_back(forms::stretch());
  return page(std::move(grupos));
}

LayoutNode frmPartidaMatrimonio::paginaCompromiso() {
  LayoutNode testigos = grupo("TESTIGOS:", 3,
                              {en(Testigo1), en(Testigo1NaturalDe), en(Testigo1Poblacion),
                               en(Testigo2), en(Testigo2NaturalDe), en(Testigo2Poblacion)});
  testigos.control->setVisible(txtPartida[Testigo1].visible());
  return page(
      {fields(2, {item(adtpPartida[FechaMatrimonio]), item(txtHoraMatrimonio), en(Parroquia),
                  en(Diocesis), provincia(ProvinciaMatrimonio), poblacion(ProvinciaMatrimonio),
                  item(chkLugar), en(Demarcacion), en(Padrino), en(Madrina), en(Testigos, 2),
                  en(Celebrante), en(ExpedInst), en(NihilObstat), en(TestigosParroquia)}),
       std::move(testigos),
       grupo("DOMICILIO DESPUÉS DE LA BODA:", 2,
             {en(DomicilioMatrimonio), en(CPCompromiso), provincia(ProvinciaDomicMatr),
              poblacion(ProvinciaDomicMatr), en(TelefonoDomicMatr)}),
       forms::stretch()});
}

}  // namespace fidaleon
