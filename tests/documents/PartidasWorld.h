#pragma once
// One entry of each sacrament in a book of its own, all in one parish.

#include "BautismoWorld.h"

namespace fidaleon::tests {

struct PartidasWorld : BautismoWorld {
  PartidasWorld() {
    run("UPDATE Institucion SET Parroco=\"Andrés Gil\", EncargadoArchivo=\"Rosa Sanz\"");
    insert(con(), "Institucion_Encargado", "CodInstitucion=1; Nombre=Pedro Ruiz");
    for (const char* libro : {"Libro_Confirmacion", "Libro_Matrimonio", "Libro_Defuncion"})
      insert(con(), libro, R"(CodInstitucion=1; CodFormato=3; CodTipoNombre=1; Nombre=Libro IV
          FechaCreacion=20030101; Nuevo=TRUE)");
    confirmar();
    casar();
    enterrar();
  }

 private:
  // The columns that a document prints are named with the word of the spouse at the end.
  void casar() {
    insert(con(), "Matrimonio_Novios", R"(Nombre=Luis; PrimerApellido=Gil; SegundoApellido=Mora
        DNI=1A; Edad=30; Religion=Católica; FechaNac=19900102; CodMunicipioNac=3
        DomicilioActual=Calle Ancha, 1; CodMunicipioActual=1; DomicilioAnterior=
        CodMunicipioAnterior=0; FechaConfirmacion=20050506; CodMunicipioConfirmacion=2
        TResidenciaDomAct=4; Profesion=Maestro; DiocesisNac=Toledo; Nacionalidad=Española
        EmailNovio=luis@casa; TelefonoNovio=600; ParroquiaExhorto=San José
        PoblacionExhorto=Pinto; DiocesisExhorto=Getafe)");
    insert(con(), "Matrimonio_Novios_Bautismo", R"(CodNovios=1; FechaBaut=19900201
        ParroquiaBaut=Santa Ana; DiocesisBaut=Toledo; CodMunicipioBaut=3; LibroBaut=IV
        FolioBaut=12; NumeroBaut=3)");
    insert(con(), "Matrimonio_Novios_RegCivil", R"(CodNovios=1; EstadoCivil=soltero
        NombrePadre=Juan Gil; NombreMadre=Inés Mora; MunicipioInscrito=Toledo; Tomo=5; Pagina=66
        NombreCivil=Luis G.; SujetoDerecho=Derecho común)");
    insert(con(), "Matrimonio_Novias", R"(Nombre=Ana; PrimerApellido=Sanz; SegundoApellido=Ruiz
        DNI=2B; Edad=29; Religion=Ortodoxa; FechaNac=19910304; CodMunicipioNac=2
        DomicilioActual=Calle Nueva, 2; CodMunicipioActual=2; DomicilioAnterior=Calle Vieja
        CodMunicipioAnterior=3; FechaConfirmacion=---; CodMunicipioConfirmacion=0
        TResidenciaDomAct=0; Profesion=Médica; DiocesisNac=Sevilla; Nacionalidad=Rumana
        EmailNovia=ana@casa; TelefonoNovia=700; ParroquiaExhorto=San Blas
        PoblacionExhorto=Osuna; DiocesisExhorto=Sevilla)");
    insert(con(), "Matrimonio_Novias_Bautismo", R"(CodNovias=1; FechaBaut=19910405
        ParroquiaBaut=Santa Cruz; DiocesisBaut=Sevilla; CodMunicipioBaut=2; LibroBaut=VII
        FolioBaut=8; NumeroBaut=9b)");
    insert(con(), "Matrimonio_Novias_RegCivil", R"(CodNovias=1; EstadoCivil=viuda
        NombrePadre=Pedro Sanz; NombreMadre=Rosa Ruiz; MunicipioInscrito=2; Tomo=7; Pagina=88
        NombreCivil=Ana S.; SujetoDerecho=Navarra)");
    insert(con(), "Matrimonio", R"(CodNovios=1; CodNovias=1; InstitucionSolicitud=0
        Parroquia=Santa Ana; CodMunicipio=1; Diocesis=Getafe; NotasMarginales=Nulo en 2025
        Observaciones=Con dispensa; CodLibro=1; Folio=5; Numero=6a; Anulada=FALSE)");
    insert(con(), "Matrimonio_Compromiso", R"(CodMatrimonio=1; FechaMatrimonio=20200926
        HoraMatrimonio=12:30; Padrino=Juan Gil; Madrina=Rosa Ruiz; Testigos=---
        Celebrante=José Vidal; ExpedInst=En Getafe; DomicilioMatrimonio=Calle Real, 7
        CodMunicipioDomicMatr=3; TelefonoDomicMatr=916; CPCompromiso=28901; NihilObstat=3/2020
        Demarcacion=San Juan; TestigosParroquia=De ambas; Testigo1=---; Testigo2=Eva Lara)");
    insert(con(), "Matrimonio_Expediente", R"(CodMatrimonio=1; NombreTestigo1=Blas
        PrimerApellidoTestigo1=Soto; SegundoApellidoTestigo1=---; DNITestigo1=3C
        DomicilioTestigo1=Calle Uno; CodMunicipioTestigo1=1; NombreTestigo2=Inés
        PrimerApellidoTestigo2=Lara; SegundoApellidoTestigo2=Pol; DNITestigo2=4D
        DomicilioTestigo2=; CodMunicipioTestigo2=0)");
    insert(con(), "Matrimonio_Cursos", "CodMatrimonio=1; Cod_Tipo_Persona=1; [2]=No, d'antes");
  }

  void confirmar() {
    insert(con(), "Confirmacion", R"(InstitucionSolicitud=0; Nombre=Lucía; PrimerApellido=García
        SegundoApellido=Pérez; FechaNac=20030401; CodMunicipioNac=3; NombrePadre=Luis García Mora
        NombreMadre=Ana Pérez Ruiz; Domicilio=Calle Real, 7; CodMunicipioDomicilio=2
        FeligresDe=San José; Parroquia=Santa Ana; CodMunicipioParr=1; DiocesisParr=Getafe
        NotasMarginales=Se casó en 2030; CodLibro=1; Folio=8; Numero=4b)");
    insert(con(), "Confirmacion_Datos", R"(CodConfirmacion=1; FechaConfirmacion=20190331
        Padrino=Eva Ruiz; Ministro=Juan Soto; CargoMinistro=Obispo)");
    insert(con(), "Confirmacion_Bautismo", R"(CodConfirmacion=1; FechaBaut=20030524
        ParroquiaBaut=San Ginés; DireccionBaut=Calle Mayor, 1; CodMunicipioBaut=3
        LibroBaut=2003/01; FolioBaut=12; NumeroBaut=23a)");
  }
  void enterrar() {
    insert(con(), "Defuncion", R"(Nombre=Antonio; PrimerApellido=García; SegundoApellido=Lara
        CodMunicipioNaturalDe=2; DomicilioActual=Calle Real, 7; CodMunicipioActual=1
        EstadoCivil=casado; Consorte=Rosa Mora; NumeroHijos=2; NombresHijos=Luis y Eva
        NombrePadre=Juan García; NombreMadre=Inés Lara; Parroquia=Santa Ana; CodMunicipioParr=1
        DiocesisParr=Getafe; NotasMarginales=Cremado; CodLibro=1; Folio=3; Numero=7
        Parroco=José Vidal)");
    insert(con(), "Defuncion_Datos", R"(CodDifunto=1; Causa=Infarto; Edad=81
        FechaDefuncion=20240229; HoraDefuncion=04:15; DomicilioDefn=Hospital; CodMunicipioDefn=3
        FechaInhumacion=20240301; Cementerio=San José; Sacramentos=Unción; Sacerdote=José Vidal)");
  }
};

}  // namespace fidaleon::tests
