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
  /// The columns of a spouse are named as a document names them, with the word at the end.
  void conyuge(const std::string& tabla, const std::string& persona, const std::string& bautismo,
               const std::string& registro) {
    const std::string clave = "Cod" + tabla;
    run("INSERT INTO Matrimonio_" + tabla +
        " (Nombre, PrimerApellido, SegundoApellido, DNI, Edad, "
        "Religion, FechaNac, CodMunicipioNac, DomicilioActual, CodMunicipioActual, "
        "DomicilioAnterior, CodMunicipioAnterior, FechaConfirmacion, CodMunicipioConfirmacion, "
        "TResidenciaDomAct, Profesion, DiocesisNac, Nacionalidad, Email" +
        tabla.substr(0, 5) + ", Telefono" + tabla.substr(0, 5) +
        ", ParroquiaExhorto, PoblacionExhorto, DiocesisExhorto) VALUES (" + persona + ")");
    run("INSERT INTO Matrimonio_" + tabla + "_Bautismo (" + clave +
        ", FechaBaut, ParroquiaBaut, DiocesisBaut, CodMunicipioBaut, LibroBaut, FolioBaut, "
        "NumeroBaut) VALUES (1, " +
        bautismo + ")");
    run("INSERT INTO Matrimonio_" + tabla + "_RegCivil (" + clave +
        ", EstadoCivil, NombrePadre, NombreMadre, MunicipioInscrito, Tomo, Pagina, NombreCivil, "
        "SujetoDerecho) VALUES (1, " +
        registro + ")");
  }
  void casar() {
    const std::string enGetafe = std::to_string(getafe), enToledo = std::to_string(toledo);
    const std::string enEcija = std::to_string(ecija);
    conyuge("Novios",
            "\"Luis\", \"Gil\", \"Mora\", \"1A\", \"30\", \"Católica\", \"19900102\", " + enToledo +
                ", \"Calle Ancha, 1\", " + enGetafe + ", \"\", 0, \"20050506\", " + enEcija +
                ", 4, \"Maestro\", \"Toledo\", \"Española\", \"luis@casa\", \"600\", "
                "\"San José\", \"Pinto\", \"Getafe\"",
            "\"19900201\", \"Santa Ana\", \"Toledo\", " + enToledo + ", \"IV\", 12, \"3\"",
            "\"soltero\", \"Juan Gil\", \"Inés Mora\", \"Toledo\", \"5\", \"66\", \"Luis G.\", "
            "\"Derecho común\"");
    conyuge("Novias",
            "\"Ana\", \"Sanz\", \"Ruiz\", \"2B\", \"29\", \"Ortodoxa\", \"19910304\", " + enEcija +
                ", \"Calle Nueva, 2\", " + enEcija + ", \"Calle Vieja\", " + enToledo +
                ", \"---\", 0, 0, \"Médica\", \"Sevilla\", \"Rumana\", \"ana@casa\", \"700\", "
                "\"San Blas\", \"Osuna\", \"Sevilla\"",
            "\"19910405\", \"Santa Cruz\", \"Sevilla\", " + enEcija + ", \"VII\", 8, \"9b\"",
            "\"viuda\", \"Pedro Sanz\", \"Rosa Ruiz\", \"" + enEcija +
                "\", \"7\", \"88\", \"Ana S.\", \"Navarra\"");
    run("INSERT INTO Matrimonio (CodNovios, CodNovias, InstitucionSolicitud, Parroquia, "
        "CodMunicipio, Diocesis, NotasMarginales, Observaciones, CodLibro, Folio, Numero, Anulada) "
        "VALUES (1, 1, 0, \"Santa Ana\", " +
        enGetafe + ", \"Getafe\", \"Nulo en 2025\", \"Con dispensa\", 1, 5, \"6a\", 0)");
    run("INSERT INTO Matrimonio_Compromiso (CodMatrimonio, FechaMatrimonio, HoraMatrimonio, "
        "Padrino, Madrina, Testigos, Celebrante, ExpedInst, DomicilioMatrimonio, "
        "CodMunicipioDomicMatr, TelefonoDomicMatr, CPCompromiso, NihilObstat, Demarcacion, "
        "TestigosParroquia, Testigo1, Testigo2) VALUES (1, \"20200926\", \"12:30\", \"Juan Gil\", "
        "\"Rosa Ruiz\", \"---\", \"José Vidal\", \"En Getafe\", \"Calle Real, 7\", " +
        enToledo +
        ", \"916\", \"28901\", \"3/2020\", \"San Juan\", \"De ambas\", \"---\", \"Eva Lara\")");
    run("INSERT INTO Matrimonio_Expediente (CodMatrimonio, NombreTestigo1, PrimerApellidoTestigo1, "
        "SegundoApellidoTestigo1, DNITestigo1, DomicilioTestigo1, CodMunicipioTestigo1, "
        "NombreTestigo2, PrimerApellidoTestigo2, SegundoApellidoTestigo2, DNITestigo2, "
        "DomicilioTestigo2, CodMunicipioTestigo2) VALUES (1, \"Blas\", \"Soto\", \"---\", \"3C\", "
        "\"Calle Uno\", " +
        enGetafe + ", \"Inés\", \"Lara\", \"Pol\", \"4D\", \"\", 0)");
    run("INSERT INTO Matrimonio_Cursos (CodMatrimonio, Cod_Tipo_Persona, [2]) VALUES (1, 1, 'No, "
        "d''antes')");
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
