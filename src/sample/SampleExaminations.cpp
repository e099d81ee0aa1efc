#include "sample/SampleExaminations.h"

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "parish/Insert.h"

namespace fidaleon::app {
namespace {

constexpr int GROOM = 4;  // the others follow: bride, first witness, second witness
constexpr std::size_t OF_A_SPOUSE = 31;
constexpr std::size_t OF_A_WITNESS = 23;

// In the order of the questions; an empty answer to one that does not concern the person.
using OfSpouse = std::array<std::string_view, OF_A_SPOUSE>;
constexpr OfSpouse HIS{
    "Sí, lo juro.",
    "Sí. Estudié en Salamanca desde octubre de 2014 hasta junio de 2018 y volvía a casa en "
    "vacaciones.",
    "No.",
    "",
    "No.",
    "",
    "",
    "",
    "Porque los dos somos creyentes y queremos que Dios esté en nuestra familia desde el primer "
    "día. Mis padres se casaron en esta misma iglesia.",
    "Sí.",
    "Ninguna.",
    "",
    "Libremente y por amor.",
    "No, al contrario: nos han dejado decidir.",
    "Sí, quiero y me comprometo.",
    "Sí, para toda la vida.",
    "Sí. Deseamos tener hijos si Dios nos los da.",
    "Sí.",
    "No.",
    "",
    "La acepto sin ninguna reserva.",
    "Sí, estoy seguro.",
    "No. Llevamos seis años de noviazgo y nos conocemos bien.",
    "Sí.",
    "No.",
    "No.",
    "No.",
    "",
    "",
    "",
    ""};
constexpr OfSpouse HERS{
    "Sí, lo juro.",
    "No. He vivido siempre con mis padres.",
    "No.",
    "",
    "No.",
    "",
    "",
    "",
    "Porque creo que el matrimonio es una vocación y quiero vivirla como tal, con la gracia del "
    "sacramento y con la ayuda de la comunidad.",
    "Sí.",
    "Algunas cosas me ha costado entenderlas, pero las hemos hablado en el curso.",
    "Lo que la Iglesia enseña sobre la regulación de los nacimientos. Hoy la acepto.",
    "Por elección personal, libremente y por amor.",
    "No.",
    "Sí, quiero que sea único y me comprometo.",
    "Sí.",
    "Sí, lo acepto.",
    "Sí. Los dos queremos que se bauticen y vengan a la catequesis.",
    "No.",
    "",
    "Sí, como único e indisoluble.",
    "Sí, completamente.",
    "No.",
    "Sí. Es una persona responsable y trabajadora.",
    "No, nada.",
    "No.",
    "No.",
    "",
    "",
    "",
    ""};

using OfWitness = std::array<std::string_view, OF_A_WITNESS>;
constexpr OfWitness FIRST{
    "Sí, lo juro.",
    "A él desde niño; a ella desde que empezaron a salir, hace unos seis años.",
    "Somos vecinos y amigos. Nos vemos casi todas las semanas.",
    "Él en el pueblo, menos los cuatro años que estudió fuera. Ella, con sus "
    "padres.",
    "No.",
    "",
    "",
    "",
    "Sí, con toda seguridad.",
    "Sí.",
    "No, ninguna.",
    "No.",
    "No.",
    "No.",
    "Sí.",
    "No, que yo sepa.",
    "No.",
    "Sí, me consta.",
    "No.",
    "No hay ninguno.",
    "Es considerado normal.",
    "",
    "Que me alegro mucho por ellos."};
constexpr OfWitness SECOND{"Sí, lo juro.",
                           "A los dos desde hace ocho años, de la parroquia.",
                           "He sido su catequista y después compañera en Cáritas.",
                           "Que yo sepa, cada uno en casa de sus padres; él estuvo fuera mientras "
                           "estudiaba.",
                           "No.",
                           "",
                           "",
                           "",
                           "Sí.",
                           "Sí, son muy responsables.",
                           "Ninguna.",
                           "No.",
                           "No.",
                           "No. Siempre han dicho que querían tener hijos.",
                           "Sí.",
                           "No.",
                           "No.",
                           "Sí.",
                           "No.",
                           "No.",
                           "Normal.",
                           "",
                           "No."};

}  // namespace

void fillSampleExaminations(store::Connection& connection, const sample::Marriage& m,
                            const std::string& parish) {
  const std::int64_t id =
      connection.Execute("SELECT MAX(IDMatrimonio) AS ID FROM Matrimonio").integer("ID");
  const std::vector<std::string> general{
      "Parroquia de " + parish + ", los viernes de octubre, de ocho a diez de la tarde.",
      "Parroquia de " + parish + ", " + text::toShort(m.day) + ", a las " + m.hour + ".", m.street};
  int person = GROOM;
  for (const std::span<const std::string_view> answers :
       {std::span<const std::string_view>(HIS), {HERS}, {FIRST}, {SECOND}}) {
    Insert row("Matrimonio_Cursos");
    row.number("CodMatrimonio", id).number("Cod_Tipo_Persona", person);
    std::size_t column = 0;
    for (const std::string_view answer : answers)
      row.text(std::to_string(column++), std::string(answer));
    if (person++ == GROOM)
      for (const std::string& said : general) row.text(std::to_string(column++), said);
    row.into(connection);
  }
}

}  // namespace fidaleon::app
