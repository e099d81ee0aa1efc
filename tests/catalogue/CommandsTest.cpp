#include <gmock/gmock.h>

#include <set>
#include <utility>

#include "catalogue/Command.h"
#include "catalogue/ListReports.h"
#include "core/contract/FDAPI.h"
#include "core/facade/Documentos.h"
#include "text/Utf8.h"

namespace fidaleon::app::CommandsTest {

Choice at(const char* node, std::int32_t id = 0, bool annulled = false) {
  return {findNode(node), id, annulled};
}

std::set<std::string> given(const Choice& choice) {
  std::set<std::string> ids;
  for (const Command& c : commands())
    if (c.kinds != 0 && applies(c, choice)) ids.insert(c.id);
  return ids;
}

using Ids = std::set<std::string>;

TEST(Commands, withoutARow_onlyNewThings) {
  EXPECT_EQ(given(at("PartidasBautismo")), (Ids{"nueva-partida", "antigua-partida"}));
  EXPECT_EQ(given(at("SolicitudesBautismo")), (Ids{"nueva-solicitud", "pasar-al-libro"}));
  EXPECT_EQ(given(at("Duplicadas de bautismo")), Ids{"duplicadas"});
  EXPECT_EQ(given(at("LibrosMatrimonio")), (Ids{"nuevo-libro"}));
  EXPECT_EQ(given(at("Municipios")), (Ids{"nuevo-municipio"}));
  EXPECT_EQ(given(at("Partidas")), Ids{});
  EXPECT_EQ(given(Choice{}), Ids{});
}

TEST(Commands, anEntryIsAnnulledOrValidated_neverBoth) {
  const Ids valid = given(at("PartidasBautismo", 5));
  const Ids annulled = given(at("PartidasBautismo", 5, true));
  EXPECT_EQ(valid,
            (Ids{"nueva-partida", "antigua-partida", "propiedades-partida", "anular",
                 "eliminar-partida", "certificado", "literal", "partida", "volante", "familia"}));
  EXPECT_TRUE(annulled.count("validar"));
  EXPECT_FALSE(annulled.count("anular"));
}

TEST(Commands, peopleAreOpenedInEitherRole_andDeletedInTheirOwn) {
  EXPECT_EQ(given(at("Padrón", 7)),
            (Ids{"nuevo-empadronado", "propiedades-empadronado", "abrir-como-colaborador",
                 "eliminar-empadronado", "familia"}));
  EXPECT_EQ(given(at("Colaboradores", 7)),
            (Ids{"nuevo-colaborador", "propiedades-colaborador", "ver-en-el-padron",
                 "eliminar-colaborador", "informe-de-la-lista", "familia"}));
  EXPECT_EQ(given(at("Actividades", 7)), (Ids{"nueva-actividad", "propiedades-actividad",
                                              "eliminar-actividad", "informe-de-la-lista"}));
  EXPECT_EQ(given(at("Cargos")), Ids{"nuevo-cargo"});
  EXPECT_EQ(given(at("Tareas", 7)),
            (Ids{"nueva-tarea", "propiedades", "eliminar", "informe-de-la-lista"}));
}

TEST(Commands, whatTakesRowsAway_isMarkedAndHasTheDeleteKey) {
  for (const Command& c : commands()) EXPECT_EQ(c.destructive, c.shortcut == "Del") << c.id;
}

TEST(Commands, booksOfferWhatTheirRegisterHas) {
  const Ids baptism{"nuevo-libro",  "cerrar-libro", "eliminar-libro", "propiedades-libro",
                    "ver-partidas", "libro",        "indice"};
  EXPECT_EQ(given(at("LibrosBautismo", 1)), baptism);
  for (const char* id : {"propiedades-libro", "ver-partidas"})
    for (const char* other : {"LibrosMatrimonio", "LibrosDefuncion"})
      EXPECT_TRUE(given(at(other, 1)).contains(id)) << other;
}

TEST(Commands, noTwoThatApplyShareAKeyOrAnId) {
  for (const NodeView& v : nodeViews())
    for (const bool annulled : {false, true}) {
      std::set<std::string> keys;
      std::set<std::string> ids;
      int opening = 0;
      for (const Command& c : commands()) {
        if (!applies(c, {&v, 3, annulled})) continue;
        EXPECT_TRUE(c.shortcut.empty() || keys.insert(c.shortcut).second) << c.id;
        EXPECT_TRUE(ids.insert(c.id).second) << c.id;
        opening += c.opens;
      }
      EXPECT_LE(opening, 1) << v.node.Nombre;
    }
}

std::string mnemonic(const std::string& text) {
  const std::size_t mark = text.find('&');
  return mark == std::string::npos ? std::string() : text::searchKey(text.substr(mark + 1, 1));
}

TEST(Commands, noTwoInAMenuShareAMnemonic) {
  for (const NodeView& v : nodeViews())
    for (const bool annulled : {false, true}) {
      std::set<std::pair<Menu, std::string>> letters;
      for (const Command& c : commands()) {
        if (!applies(c, {&v, 3, annulled})) continue;
        EXPECT_FALSE(mnemonic(c.text).empty()) << c.id;
        EXPECT_TRUE(letters.insert({c.menu, mnemonic(c.text)}).second) << c.id;
      }
    }
}

TEST(Nodes, haveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const NodeView& v : nodeViews()) {
    EXPECT_TRUE(names.insert(v.node.Nombre).second) << v.node.Nombre;
    EXPECT_EQ(findNode(v.node.Nombre), &v);
  }
}

TEST(Documents, everyReportNodeHasItsReport_withATemplate) {
  int nodes = 0;
  for (const NodeView& v : nodeViews()) {
    if (v.kind != NodeKind::ListReports) continue;
    ++nodes;
    const ListReport* report = findListReport(v.node.Nombre);
    ASSERT_TRUE(report) << v.node.Nombre;
    EXPECT_EQ(given({&v, 0, false}), (Ids{"informe", "informe-entero"}));
  }
  EXPECT_EQ(nodes, 4);
  EXPECT_EQ(findListReport("Colaboradores")->templateName, "informe_colaboradores");
  EXPECT_FALSE(findListReport("Padrón"));
}

TEST(Documents, anEntryIsOfferedThoseOfItsSacrament_inTheEditionOfTheParish) {
  using E = FDAPI::cCAplicacion;
  for (const char* edition : {E::APP_FIDALEON_MADRID, E::APP_FIDALEON_SANTIAGO,
                              E::APP_FIDALEON_ZARAGOZA, E::APP_FIDALEON_MENORCA})
    for (const NodeView& v : nodeViews()) {
      if (!v.sacrament) continue;
      for (const Command& c : commands()) {
        if (!c.document || !(c.kinds & bit(v.kind))) continue;
        const Documento* d = documento(*v.sacrament, c.id, edition);
        const bool itsOwn = !isReport(v.kind) || v.report == c.id;
        EXPECT_EQ(belongs(c, {&v, 1, false, edition}), d && itsOwn) << v.node.Nombre << c.id;
        EXPECT_TRUE(!d || d->sacramento == v.sacrament) << c.id;
      }
    }
  EXPECT_STREQ(documento(BAUTISMO, "datos", E::APP_FIDALEON_SANTIAGO)->operacion,
               "InformeSolicitudPartidaBautismoDatosSantiago");
  EXPECT_STREQ(documento(BAUTISMO, "volante", E::APP_FIDALEON_ZARAGOZA)->operacion,
               "InformeVolanteBautismo");
}

}  // namespace fidaleon::app::CommandsTest
