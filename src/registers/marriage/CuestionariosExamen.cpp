// What is asked in the examinations, word for word.

#include "registers/marriage/CuestionariosExamen.h"

namespace fidaleon {

namespace {

constexpr const char* DATOS[] = {
    "(*) Lugar y fecha del curso de preparación al matrimonio:",
    "(*) Lugar y fecha de celebración de la boda:",
    "(*) Domicilio después de celebrar la boda:",
};

constexpr const char* DE_CONTRAYENTE[] = {
    "¿ Acepta Vd.  Responder a las siguientes preguntas bajo juramento ?",
    "Despúes de cumplir los dieciséis años, ¿ha vivido durante más de un año fuera de la diócesis "
    "en la que actualmente tiene domicilio? ¿Dondé? (Especifiquese lugar, las fechas y la duración "
    "de la estancia.)",
    "¿ Ha contraído previamente matrimonio, incluso meramente civil ?",
    "¿ Cuándo, dónde y con quién ?",
    "¿ Ha tenido hijos ?",
    "¿ Ha cesado este vínculo ?",
    "¿ Cómo ?",
    "¿ Cuándo ?",
    "¿ Por qué quiere casarse por la Iglesia ?",
    "¿ Cree que el matrimonio es un sacramento ?",
    "¿ Tiene alguna dificultad para aceptar la enseñanza de la Iglesia el matrimonio y la familia "
    "?",
    "¿ Cuál ?",
    "El matrimonio implica una desición completamente libre, ¿ Se casa por elección personal, "
    "libremente y por amor, o bien obligado por alguna necesidad ?",
    "¿ Se siente presionado a contraer matrimonio por sus familiares o por los del otro "
    "contrayente ?",
    "El matrimonio es una comunión de toda la vida entre un hombre y una mujer hasta la muerte de "
    "uno de los cónyuges. ¿Quiere que su matrimonio sea único y se compromete a la fidelidad "
    "conyugal?",
    "Es voluntad de Dios que el vínculo matrimonial dure hasta la muerte de uno de los cónyuges.   "
    "      ¿ Quiere que su matrimonio sea indisoluble y, por lo tanto, excluye disolverlo mediante "
    "el divorcio ?",
    "El matrimonio está ordenado por su misma naturaleza al bien de los cónyuges y a la "
    "procreación y educación de los hijos. ¿ Acepta el deber de la paternidad, sin excluir el bien "
    "de la procreación ?",
    "¿ Tiene intención de educar a sus hijos en la fe católica ?",
    "¿ Pone condiciones al matrimonio ?",
    "¿ Cuáles ?",
    "¿ Acepta al otro contrayente el matrimonio-sacramento como único e indisoluble, o tiene "
    "alguna reserva al respecto (Infidelidad, divorcio) ? ",
    "¿ Está seguro de que contrae matrimonio con Vd. libremente y por amor ?",
    "¿ Ha tenido motivos para dudar del éxito del matrimonio ?",
    "¿ Cree Vd. que el otro contrayente ha alcanzado la suficiente madurez para cumplir las "
    "obligaciones del matrimonio ?",
    "¿ Oculta al otro contrayente alguna cosa que pueda perturbar gravemente la vida conyugal ?",
    "¿ Existen vínculos de consanguinidad entre Vd. y el otro contrayente ? (Primos, Tíos o "
    "sobrinos)",
    "¿ Existen otros impedimentos al matrimonio canónico o prohibiciones para la celebración ? "
    "(Disparidad de culto, matrimonio mixto, etc.)",
    "Menores de 18 años. ¿ Saben sus padres que pretende contraer matrimonio ? ¿ Son favorables al "
    "mismo o se oponen a él ?",
    "Casados Civilmente. ¿ Por qué contrajo matrimonio civil ? ¿Por qué pide ahora que se case por "
    "la Iglesia?",
    "Casado Civilmente con otra persona. ¿Ha obtenido ya la sentencia de divorcio?",
    "¿ Cumple con los deberes naturales derivados de la precedente unión hacia la otra parte y "
    "hacia los hijos ?",
};

constexpr const char* DE_TESTIGO[] = {
    "¿ Acepta Vd.  Responder a las siguientes preguntas bajo juramento ?",
    "¿ Desde cuándo conoce a los contrayentes ?",
    "¿ Qué trato y relación ha tenido y tiene con ellos ?",
    "¿ Dónde han vivido los contrayentes desde los dieciséis años de edad ? (Indíquese, lugar, las "
    "fechas y la duración de la estancia.)",
    "¿ Le consta que haya contraído matrimonio, incluso meramente civil ?",
    "¿ En caso afirmativo: ¿Cuándo? ¿Dónde? ¿Con quién?",
    "¿ Subsiste aún este vínculo ? ",
    "En caso negativo, ¿Cómo ha cesado?¿Cúando?",
    "¿ Puede afirmar con seguridad que los contrayentes están libres de todo vínculo matrimonial ?",
    "¿ Considera que los contrayentes han alcanzado la suficiente madurez y que son capaces de "
    "cumplir las obligaciones del matrimonio ?",
    "¿ Tienen los contrayentes alguna cualidad que pueda perturbar la vida conyugal ?",
    "¿ Le consta que los contrayentes hayan manifestado alguna reserva con la relación a la "
    "fidelidad conyugal?",
    "¿ Y sobre la indisolubilidad del matrimonio ?",
    "¿ Y respecto a la generación y educación de los hijos ?",
    "¿ Le consta que los contrayentes entienden el matrimonio como una comunidad de vida y amor ?",
    "¿ Sabe si los contrayentes ponen algun condición al matrimonio ? ",
    "¿ Tiene conocimiento de presiones o amenazas que les coaccionen a celebrar este matrimonio ?",
    "¿ Le consta que los contrayentes acceden libremente al matrimonio ?",
    "¿ Le consta que alguno de los contrayentes no esté bautizado en la Iglesia Católica o haya "
    "abandonado notoramiente la fe Católica ?",
    "¿ Sabe si hay entre los contrayentes impedimento de consanguinidad ? (Primos, tíos o "
    "sobrinos)",
    "¿ Este matrimonio es considerado normal o llama la atención ?",
    "En este caso, ¿Por qué?",
    "¿ Tiene algo que añadir ?",
};

constexpr ApartadoExamen APARTADOS_DATOS[] = {{"DATOS GENERALES:", 0}};
constexpr ApartadoExamen APARTADOS_CONTRAYENTE[] = {{"CUESTIONARIO:", 0},
                                                    {"ESTADO LIBRE", 1},
                                                    {"CONSENTIMIENTO MATRIMONIAL", 8},
                                                    {"DURANTE EL NOVIAZGO", 22},
                                                    {"IMPEDIMENTOS O PROHIBICIONES", 25}};
constexpr ApartadoExamen APARTADOS_TESTIGO[] = {{"CUESTIONARIO:", 0},
                                                {"ESTADO LIBRE", 3},
                                                {"CONCENTIMIENTO", 9},
                                                {"IMPEDIMENTOS Y PROHIBICIONES", 18}};

}  // namespace

const std::array<PaginaExamen, PAGINAS_EXAMEN> PAGINAS_DE_EXAMEN{{
    {"DatosGenerales", "DATOS GENERALES", 4, 31, DATOS, APARTADOS_DATOS},
    {"Novio", "NOVIO", 4, 0, DE_CONTRAYENTE, APARTADOS_CONTRAYENTE},
    {"Novia", "NOVIA", 5, 0, DE_CONTRAYENTE, APARTADOS_CONTRAYENTE},
    {"Testigo1", "PRIMER TESTIGO", 6, 0, DE_TESTIGO, APARTADOS_TESTIGO},
    {"Testigo2", "SEGUNDO TESTIGO", 7, 0, DE_TESTIGO, APARTADOS_TESTIGO},
}};

}  // namespace fidaleon
