#include "paper/DocumentCatalogue.h"

#include <algorithm>

namespace fidaleon::paper {

const std::vector<Document>& documentCatalogue() {
  static const std::vector<Document> documents{
      {"InformeCertificadoPartidaBautismo", "certificado_bautismo",
       QStringLiteral("Certificado de bautismo"), Edition::Base, true},
      {"InformeCertificadoPartidaBautismoMenorca", "certificado_bautismo_menorca",
       QStringLiteral("Certificado de bautismo (Menorca)"), Edition::Menorca, true},
      {"InformeCertificadoLiteralPartidaBautismo", "certificado_literal_bautismo",
       QStringLiteral("Certificado literal de bautismo"), Edition::Base, true},
      {"InformeCertificadoLiteralPartidaBautismoMenorca", "certificado_literal_bautismo_menorca",
       QStringLiteral("Certificado literal de bautismo (Menorca)"), Edition::Menorca, true},
      {"InformePartidaBautismo", "partida_bautismo", QStringLiteral("Partida de bautismo"),
       Edition::Base, false},
      {"InformePartidaBautismoMenorca", "partida_bautismo_menorca",
       QStringLiteral("Partida de bautismo (Menorca)"), Edition::Menorca, false},
      {"InformeVolanteBautismo", "volante_bautismo", QStringLiteral("Volante de bautismo"),
       Edition::Base, false},
      {"InformeVolanteBautismoMenorca", "volante_bautismo_menorca",
       QStringLiteral("Volante de bautismo (Menorca)"), Edition::Menorca, false},
      {"InformeSolicitudPartidaBautismoDatos", "solicitud_bautismo",
       QStringLiteral("Solicitud de bautismo"), Edition::Base, false},
      {"InformeSolicitudPartidaBautismoDatosMenorca", "solicitud_bautismo_menorca",
       QStringLiteral("Solicitud de bautismo (Menorca)"), Edition::Menorca, false},
      {"InformeSolicitudPartidaBautismoDatosSantiago", "solicitud_bautismo_santiago",
       QStringLiteral("Solicitud de bautismo (Santiago)"), Edition::Santiago, false},
      {"InformeLibroBautismo", "libro_bautismo", QStringLiteral("Libro de bautismos"),
       Edition::Base, false},
      {"InformeLibroBautismoMenorca", "libro_bautismo_menorca",
       QStringLiteral("Libro de bautismos (Menorca)"), Edition::Menorca, false},
      {"InformeIndiceLibroBautismo", "indice_libro_bautismo",
       QStringLiteral("Índice del libro de bautismos"), Edition::Base, false},
      {"InformeIndiceLibroBautismoMenorca", "indice_libro_bautismo_menorca",
       QStringLiteral("Índice del libro de bautismos (Menorca)"), Edition::Menorca, false},
      {"ImprimirDuplicadasBautismo", "duplicado_bautismo", QStringLiteral("Duplicado de bautismos"),
       Edition::Base, false},
      {"InformeActividad", "informe_actividades", QStringLiteral("Informe de actividades"),
       Edition::Base, false},
      {"InformeColaborador", "informe_colaboradores", QStringLiteral("Informe de colaboradores"),
       Edition::Base, false},
      {"InformeColaboradorExt", "informe_colaboradores_ext",
       QStringLiteral("Informe de colaboradores (extendido)"), Edition::Base, false},
      {"InformeAgenda", "informe_agenda", QStringLiteral("Informe de tareas"), Edition::Base,
       false},
  };
  return documents;
}

const Document* documentOf(std::string_view operation) {
  const auto& all = documentCatalogue();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const Document& d) { return d.operation == operation; });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace fidaleon::paper
