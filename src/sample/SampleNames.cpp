#include "sample/SampleNames.h"

#include "core/contract/FDAPI.h"

namespace fidaleon::app::sample {
namespace {

using Editions = FDAPI::cCAplicacion;

constexpr std::array<Home, 4> HOMES{{
    {Editions::APP_FIDALEON_MADRID, 28, "Buitrago del Lozoya", "Madrid", "Vicaría VIII",
     "Buitrago del Lozoya", "Gargantilla del Lozoya", "San Benito"},
    {Editions::APP_FIDALEON_SANTIAGO, 15, "Padrón", "Santiago de Compostela", "Vicaría de Santiago",
     "Iria Flavia", "Dodro", "Santa María"},
    {Editions::APP_FIDALEON_ZARAGOZA, 50, "Daroca", "Zaragoza", "Vicaría IV", "Daroca", "Manchones",
     "San Juan Bautista"},
    {Editions::APP_FIDALEON_MENORCA, 7, "Ciutadella de Menorca", "Menorca", "Vicaría General",
     "Ponent", "Ferreries", "Sant Bartomeu"},
}};

}  // namespace

const Home& homeOf(std::string_view edition) {
  for (const Home& home : HOMES)
    if (home.edition == edition) return home;
  return HOMES.front();
}

const std::array<Town, 72> TOWNS{{
    {28, "Madrid"},
    {28, "Buitrago del Lozoya"},
    {28, "Gargantilla del Lozoya"},
    {28, "Torrelaguna"},
    {28, "Rascafría"},
    {28, "Colmenar Viejo"},
    {28, "Chinchón"},
    {28, "Alcalá de Henares"},
    {28, "Getafe"},
    {28, "Navalcarnero"},
    {28, "Montejo de la Sierra"},
    {15, "Santiago de Compostela"},
    {15, "Padrón"},
    {15, "Dodro"},
    {15, "Noia"},
    {15, "Betanzos"},
    {15, "Muros"},
    {15, "Ordes"},
    {50, "Zaragoza"},
    {50, "Daroca"},
    {50, "Manchones"},
    {50, "Calatayud"},
    {50, "Cariñena"},
    {50, "Used"},
    {50, "Tarazona"},
    {7, "Ciutadella de Menorca"},
    {7, "Ferreries"},
    {7, "Maó"},
    {7, "Alaior"},
    {7, "Es Mercadal"},
    {7, "Palma"},
    {5, "Ávila"},
    {5, "Arévalo"},
    {5, "Piedrahíta"},
    {40, "Segovia"},
    {40, "Riaza"},
    {40, "Sepúlveda"},
    {40, "Pedraza"},
    {19, "Guadalajara"},
    {19, "Sigüenza"},
    {19, "Tamajón"},
    {45, "Toledo"},
    {45, "Oropesa"},
    {45, "Talavera de la Reina"},
    {16, "Cuenca"},
    {16, "Huete"},
    {13, "Almagro"},
    {9, "Burgos"},
    {9, "Lerma"},
    {9, "Aranda de Duero"},
    {47, "Valladolid"},
    {47, "Peñafiel"},
    {37, "Salamanca"},
    {37, "Béjar"},
    {10, "Plasencia"},
    {10, "Trujillo"},
    {6, "Zafra"},
    {14, "Córdoba"},
    {14, "Priego de Córdoba"},
    {23, "Úbeda"},
    {41, "Écija"},
    {29, "Antequera"},
    {44, "Teruel"},
    {44, "Calamocha"},
    {22, "Jaca"},
    {31, "Tudela"},
    {26, "Haro"},
    {36, "Pontevedra"},
    {32, "Ribadavia"},
    {27, "Mondoñedo"},
    {33, "Llanes"},
    {8, "Vic"},
}};

const std::array<std::string_view, 44> BOYS_OLD{
    {"José",     "Antonio",   "Manuel",     "Francisco", "Juan",       "Pedro",   "Luis",
     "Ángel",    "Miguel",    "Jesús",      "Félix",     "Julián",     "Mariano", "Vicente",
     "Eusebio",  "Gregorio",  "Santiago",   "Andrés",    "Tomás",      "Domingo", "Benito",
     "Valentín", "Saturnino", "Cipriano",   "Ignacio",   "Rufino",     "Nicolás", "Agustín",
     "Joaquín",  "Ramón",     "Emilio",     "Lucas",     "Marcelino",  "Teodoro", "Eugenio",
     "Esteban",  "Fermín",    "Crescencio", "Isidro",    "Victoriano", "Martín",  "Bonifacio",
     "Leandro",  "Aurelio"}};
const std::array<std::string_view, 44> GIRLS_OLD{
    {"María",    "Carmen",       "Josefa",      "Isabel",   "Dolores", "Pilar",      "Teresa",
     "Ana",      "Francisca",    "Antonia",     "Mercedes", "Rosario", "Concepción", "Juana",
     "Ángela",   "Luisa",        "Encarnación", "Manuela",  "Felisa",  "Petra",      "Eulalia",
     "Dionisia", "Gregoria",     "Victoria",    "Consuelo", "Emilia",  "Asunción",   "Julia",
     "Cándida",  "Paula",        "Basilisa",    "Leonor",   "Amparo",  "Catalina",   "Sagrario",
     "Milagros", "Purificación", "Esperanza",   "Nieves",   "Adela",   "Benita",     "Tomasa",
     "Micaela",  "Inés"}};
const std::array<std::string_view, 30> BOYS_NEW{
    {"Hugo",   "Mateo",   "Martín", "Lucas", "Leo",       "Daniel",  "Alejandro", "Pablo",
     "Álvaro", "Adrián",  "David",  "Mario", "Diego",     "Javier",  "Marcos",    "Izan",
     "Sergio", "Nicolás", "Carlos", "Jorge", "Iker",      "Rodrigo", "Gonzalo",   "Samuel",
     "Íñigo",  "Bruno",   "Óscar",  "Iván",  "Guillermo", "Rubén"}};
const std::array<std::string_view, 30> GIRLS_NEW{
    {"Lucía",     "Sofía",  "Martina", "Paula",  "Julia",   "Valeria", "Emma",  "Daniela",
     "Carla",     "Alba",   "Noa",     "Alma",   "Carmen",  "Vega",    "Lara",  "Mía",
     "Valentina", "Olivia", "Claudia", "Jimena", "Irene",   "Inés",    "Elena", "Nuria",
     "Marina",    "Begoña", "Aitana",  "Rocío",  "Candela", "Blanca"}};

const std::array<std::string_view, 56> SURNAMES{
    {"García",  "Sanz",    "Martín",  "Hernán",  "Ramírez",  "Lozano",       "Bernal",
     "Velasco", "Esteban", "Montero", "Muñoz",   "Núñez",    "Peña",         "Ibáñez",
     "Álvarez", "Gil",     "Moreno",  "Herranz", "del Pozo", "de la Fuente", "Sanmartín",
     "Ruiz",    "Castaño", "Vázquez", "Rey",     "Otero",    "Seoane",       "Marco",
     "Lázaro",  "Pardos",  "Blasco",  "Gimeno",  "Pons",     "Camps",        "Moll",
     "Bosch",   "Triay",   "Florit",  "Nadal",   "Ortega",   "Calvo",        "Durán",
     "Crespo",  "Pastor",  "Nieto",   "Arribas", "Yagüe",    "Zamora",       "Ureña",
     "Toribio", "Solís",   "Rojo",    "Quesada", "Olmedo",   "Llorente",     "Jordán"}};
const std::array<std::string_view, 18> TRADES{
    {"labrador", "jornalero", "herrero", "carpintero", "maestro", "comerciante", "panadero",
     "albañil", "ganadero", "molinero", "zapatero", "guarda forestal", "conductor",
     "administrativo", "enfermero", "electricista", "funcionario", "veterinario"}};
const std::array<std::string_view, 14> STREETS{
    {"C/ Real", "C/ Mayor", "Plaza de la Constitución", "C/ de la Iglesia", "C/ del Arco",
     "Travesía del Horno", "C/ de la Fuente", "Camino de las Eras", "C/ San Roque",
     "C/ del Castillo", "Plaza del Olmo", "C/ de la Cruz", "Ronda del Molino", "C/ Nueva"}};
const std::array<std::string_view, 12> PARISHES{
    {"San Andrés Apóstol", "Santa María la Mayor", "San Pedro", "Nuestra Señora del Carmen",
     "San Miguel Arcángel", "Santiago Apóstol", "San Ildefonso", "Santa Ana",
     "Nuestra Señora de la Asunción", "San Bartolomé", "Santo Domingo", "La Inmaculada"}};

}  // namespace fidaleon::app::sample
