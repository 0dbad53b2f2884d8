#include "tools/volume/names.h"

#include <iterator>

namespace kaldo::volume {

namespace {

// Frequent ones stand first.
constexpr const char *kSurnames[] = {
    "HERNANDEZ", "GARCIA",    "MARTINEZ",  "LOPEZ",      "GONZALEZ",  "PEREZ",    "RODRIGUEZ",
    "SANCHEZ",   "RAMIREZ",   "CRUZ",      "FLORES",     "GOMEZ",     "MORALES",  "VAZQUEZ",
    "REYES",     "JIMENEZ",   "TORRES",    "DIAZ",       "GUTIERREZ", "RUIZ",     "MENDOZA",
    "AGUILAR",   "ORTIZ",     "MORENO",    "CASTILLO",   "ROMERO",    "ALVAREZ",  "MENDEZ",
    "CHAVEZ",    "RIVERA",    "JUAREZ",    "RAMOS",      "DOMINGUEZ", "HERRERA",  "MEDINA",
    "CASTRO",    "VARGAS",    "GUZMAN",    "VELAZQUEZ",  "MUÑOZ",     "ROJAS",    "DE LA CRUZ",
    "CONTRERAS", "SALAZAR",   "LUNA",      "ORTEGA",     "SANTIAGO",  "GUERRERO", "ESTRADA",
    "BAUTISTA",  "CORTES",    "SOTO",      "ALVARADO",   "ESPINOZA",  "LARA",     "AVILA",
    "RIOS",      "CERVANTES", "SILVA",     "DELGADO",    "VEGA",      "MARQUEZ",  "SANDOVAL",
    "FERNANDEZ", "LEON",      "CARRILLO",  "MEJIA",      "SOLIS",     "NUÑEZ",    "ROSAS",
    "VALDEZ",    "IBARRA",    "CAMPOS",    "SANTOS",     "CAMACHO",   "PEÑA",     "MALDONADO",
    "NAVARRO",   "ROSALES",   "ACOSTA",    "MIRANDA",    "TREJO",     "VALENCIA", "NAVA",
    "CABRERA",   "PACHECO",   "ROBLES",    "MOLINA",     "FUENTES",   "ROCHA",    "ANDRADE",
    "ARELLANO",  "HUERTA",    "SALINAS",   "PADILLA",    "BARRERA",   "OCHOA",    "MEZA",
    "ZAMORA",    "DURAN",     "SERRANO",   "CARDENAS",   "TAPIA",     "ZUÑIGA",   "MACIAS",
    "CALDERON",  "LEYVA",     "VILLEGAS",  "COTA",       "OSUNA",     "BELTRAN",  "QUINTERO",
    "PONCE",     "ESCOBEDO",  "CASTAÑEDA", "VERDUGO",    "PERALTA",   "GALLEGOS", "OROZCO",
    "VILLA",     "ARMENTA",   "LIZARRAGA", "GASTELUM",   "INZUNZA",   "FELIX",    "IBAÑEZ",
    "BAÑUELOS",  "YAÑEZ",     "O'FARRILL", "ECHEVERRIA", "GAXIOLA",   "BRISEÑO",  "WONG"};

constexpr const char *kWomen[] = {
    "MARIA",   "GUADALUPE", "JUANA",   "ROSA",    "ANA",       "LETICIA",  "PATRICIA", "SOFIA",
    "VALERIA", "FERNANDA",  "DANIELA", "LAURA",   "CARMEN",    "ELENA",    "GABRIELA", "XIMENA",
    "REGINA",  "RENATA",    "CAMILA",  "CLAUDIA", "ALICIA",    "VERONICA", "ADRIANA",  "SILVIA",
    "MONICA",  "ISABEL",    "LUCIA",   "NORMA",   "ALEJANDRA", "JIMENA",   "BEATRIZ",  "ANDREA",
    "TERESA",  "ESPERANZA", "YOLANDA", "MARISOL", "PAULA",     "MIRIAM",   "ELISA",    "IRMA"};

constexpr const char *kMen[] = {
    "JOSE",      "JUAN",    "LUIS",     "CARLOS",   "JESUS",   "MIGUEL", "FRANCISCO", "ANTONIO",
    "ALEJANDRO", "PEDRO",   "SANTIAGO", "MATEO",    "DIEGO",   "DANIEL", "SEBASTIAN", "FERNANDO",
    "JORGE",     "RICARDO", "EDUARDO",  "RAUL",     "ROBERTO", "SERGIO", "MANUEL",    "ARTURO",
    "ANGEL",     "DAVID",   "EMILIANO", "LEONARDO", "OSCAR",   "ADRIAN", "HUGO",      "ISMAEL",
    "MARIO",     "RAMON",   "TOMAS",    "SAMUEL",   "ALBERTO", "EMILIO", "GERARDO",   "IVAN"};

static_assert(std::size(kWomen) == std::size(kMen));
constexpr int kGiven = static_cast<int>(std::size(kWomen));
constexpr std::uint8_t kNone = 255;

std::uint8_t surname(Dice &dice) {
    // Two out of three by their frequency, the others from the whole list.
    constexpr int all = static_cast<int>(std::size(kSurnames));
    return static_cast<std::uint8_t>(dice.percent(66) ? dice.nearZero(all) : dice.below(all));
}

const char *givenAt(bool woman, std::uint8_t at) {
    return woman ? kWomen[at] : kMen[at];
}

}  // namespace

Name anyName(Dice &dice) {
    Name name;
    name.woman = dice.percent(56);
    name.paterno = surname(dice);
    name.materno = surname(dice);
    name.first = static_cast<std::uint8_t>(dice.below(kGiven));
    name.second = kNone;
    if (dice.percent(55)) {
        name.second = static_cast<std::uint8_t>((name.first + 1 + dice.below(kGiven - 1)) % kGiven);
    }
    return name;
}

std::string paternoOf(const Name &name) {
    return kSurnames[name.paterno];
}

std::string maternoOf(const Name &name) {
    return kSurnames[name.materno];
}

std::string givenOf(const Name &name) {
    std::string given = givenAt(name.woman, name.first);
    if (name.second != kNone) {
        given += std::string(" ") + givenAt(name.woman, name.second);
    }
    return given;
}

std::string wholeOf(const Name &name) {
    return paternoOf(name) + " " + maternoOf(name) + " " + givenOf(name);
}

}  // namespace kaldo::volume
