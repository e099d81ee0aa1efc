#pragma once
// One entry of each sacrament in a book of its own, all in one parish.

#include "BautismoWorld.h"

namespace fidaleon::tests {

struct PartidasWorld : BautismoWorld {
  PartidasWorld() {
    run("UPDATE Institucion SET Parroco=\"Andrés Gil\", EncargadoArchivo=\"Rosa Sanz\"");
    run("INSERT INTO Institucion_Encargado (CodInstitucion, Nombre) VALUES (1, \"Pedro Ruiz\")");
    for (const char* libro : {"Libro_Confirmacion", "Libro_Matrimonio", "Libro_Defuncion"})
      run(std::string("INSERT INTO ") + libro +
          " (CodInstitucion, CodFormato, CodTipoNombre, Nombre, FechaCreacion, Nuevo) VALUES (1, "
          "3, 1, \"Libro IV\", \"20030101\", 1)");
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
    run("INSERT INTO Confirmacion (InstitucionSolicitud, Nombre, PrimerApellido, SegundoApellido, "
        "FechaNac, CodMunicipioNac, NombrePadre, NombreMadre, Domicilio, CodMunicipioDomicilio, "
        "FeligresDe, Parroquia, CodMunicipioParr, DiocesisParr, NotasMarginales, CodLibro, Folio, "
        "Numero, Anulada) VALUES (0, \"Lucía\", \"García\", \"Pérez\", \"20030401\", " +
        std::to_string(toledo) + ", \"Luis García Mora\", \"Ana Pérez Ruiz\", \"Calle Real, 7\", " +
        std::to_string(ecija) + ", \"San José\", \"Santa Ana\", " + std::to_string(getafe) +
        ", \"Getafe\", \"Se casó en 2030\", 1, 8, \"4b\", 0)");
    run("INSERT INTO Confirmacion_Datos (CodConfirmacion, FechaConfirmacion, Padrino, Ministro, "
        "CargoMinistro) VALUES (1, \"20190331\", \"Eva Ruiz\", \"Juan Soto\", \"Obispo\")");
    run("INSERT INTO Confirmacion_Bautismo (CodConfirmacion, FechaBaut, ParroquiaBaut, "
        "DireccionBaut, CodMunicipioBaut, LibroBaut, FolioBaut, NumeroBaut) VALUES (1, "
        "\"20030524\", \"San Ginés\", \"Calle Mayor, 1\", " +
        std::to_string(toledo) + ", \"2003/01\", 12, \"23a\")");
  }
  void enterrar() {
    run("INSERT INTO Defuncion (Nombre, PrimerApellido, SegundoApellido, CodMunicipioNaturalDe, "
        "DomicilioActual, CodMunicipioActual, EstadoCivil, Consorte, NumeroHijos, NombresHijos, "
        "NombrePadre, NombreMadre, Parroquia, CodMunicipioParr, DiocesisParr, NotasMarginales, "
        "CodLibro, Folio, Numero, Anulada, Parroco) VALUES (\"Antonio\", \"García\", \"Lara\", " +
        std::to_string(ecija) + ", \"Calle Real, 7\", " + std::to_string(getafe) +
        ", \"casado\", \"Rosa Mora\", \"2\", \"Luis y Eva\", \"Juan García\", \"Inés Lara\", "
        "\"Santa Ana\", " +
        std::to_string(getafe) + ", \"Getafe\", \"Cremado\", 1, 3, \"7\", 0, \"José Vidal\")");
    run("INSERT INTO Defuncion_Datos (CodDifunto, Causa, Edad, FechaDefuncion, HoraDefuncion, "
        "DomicilioDefn, CodMunicipioDefn, FechaInhumacion, Cementerio, Sacramentos, Sacerdote) "
        "VALUES (1, \"Infarto\", \"81\", \"20240229\", \"04:15\", \"Hospital\", " +
        std::to_string(toledo) + ", \"20240301\", \"San José\", \"Unción\", \"José Vidal\")");
  }
};

}  // namespace fidaleon::tests
