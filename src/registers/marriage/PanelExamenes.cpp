#include "registers/marriage/PanelExamenes.h"

namespace fidaleon {

namespace {

std::vector<std::string> titulos() {
  std::vector<std::string> titulos;
  for (const PaginaExamen& pagina : PAGINAS_DE_EXAMEN) titulos.emplace_back(pagina.titulo);
  return titulos;
}

}  // namespace

PanelExamenes::Pagina::Pagina(forms::Form& form, const PaginaExamen& de)
    : respuestas(form, std::string("txtExamen") + de.nombre),
      apartados(form, std::string("fraExamen") + de.nombre) {
  for (int i = 0; i < static_cast<int>(de.preguntas.size()); ++i)
    respuestas.add(de.primeraColumna + i, de.preguntas[i]).setGrows(true);
  for (const ApartadoExamen& a : de.apartados) apartados.add(a.desde, a.titulo);
}

PanelExamenes::PanelExamenes(forms::Form& form)
    : mstExamenes(form, "mstExamenes", titulos()),
      paginas_{Pagina(form, PAGINAS_DE_EXAMEN[0]), Pagina(form, PAGINAS_DE_EXAMEN[1]),
               Pagina(form, PAGINAS_DE_EXAMEN[2]), Pagina(form, PAGINAS_DE_EXAMEN[3]),
               Pagina(form, PAGINAS_DE_EXAMEN[4])} {
  for (const Pagina& pagina : paginas_)
    for (const auto& [columna, campo] : pagina.respuestas.all()) campos_.push_back(campo.get());
}

forms::LayoutNode PanelExamenes::pagina() {
  forms::Nodes paginas;
  for (std::size_t i = 0; i < PAGINAS_EXAMEN; ++i) {
    const PaginaExamen& de = PAGINAS_DE_EXAMEN[i];
    forms::Nodes grupos;
    for (std::size_t a = 0; a < de.apartados.size(); ++a) {
      const bool ultimo = a + 1 == de.apartados.size();
      const int hasta = ultimo ? static_cast<int>(de.preguntas.size()) : de.apartados[a + 1].desde;
      forms::Nodes preguntas;
      for (int p = de.apartados[a].desde; p < hasta; ++p)
        preguntas.push_back(forms::item(paginas_[i].respuestas[de.primeraColumna + p]));
      grupos.push_back(
          forms::group(paginas_[i].apartados[de.apartados[a].desde], std::move(preguntas)));
    }
    paginas.push_back(forms::page(std::move(grupos)));
  }
  return forms::page({forms::tabs(mstExamenes, std::move(paginas))});
}

RespuestasExamen PanelExamenes::respuestas() const {
  RespuestasExamen todas;
  for (std::size_t i = 0; i < PAGINAS_EXAMEN; ++i)
    for (const auto& [columna, campo] : paginas_[i].respuestas.all())
      todas[i].push_back(campo->text());
  return todas;
}

void PanelExamenes::mostrar(const RespuestasExamen& respuestas) {
  for (std::size_t i = 0; i < PAGINAS_EXAMEN; ++i)
    for (std::size_t j = 0; j < respuestas[i].size(); ++j)
      paginas_[i].respuestas[PAGINAS_DE_EXAMEN[i].primeraColumna + static_cast<int>(j)].setText(
          respuestas[i][j]);
}

}  // namespace fidaleon
