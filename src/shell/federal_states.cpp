#include "shell/federal_states.h"

namespace kaldo {

QStringList federalStates() {
    return {QStringLiteral("AGU-Aguascalientes"),
            QStringLiteral("BCN-Baja California"),
            QStringLiteral("BCS-Baja California Sur"),
            QStringLiteral("CAM-Campeche"),
            QStringLiteral("COA-Coahuila"),
            QStringLiteral("COL-Colima"),
            QStringLiteral("CHP-Chiapas"),
            QStringLiteral("CHH-Chihuahua"),
            QStringLiteral("CMX-Ciudad de México"),
            QStringLiteral("DUR-Durango"),
            QStringLiteral("GUA-Guanajuato"),
            QStringLiteral("GRO-Guerrero"),
            QStringLiteral("HID-Hidalgo"),
            QStringLiteral("JAL-Jalisco"),
            QStringLiteral("MEX-México"),
            QStringLiteral("MIC-Michoacán"),
            QStringLiteral("MOR-Morelos"),
            QStringLiteral("NAY-Nayarit"),
            QStringLiteral("NLE-Nuevo León"),
            QStringLiteral("OAX-Oaxaca"),
            QStringLiteral("PUE-Puebla"),
            QStringLiteral("QUE-Querétaro"),
            QStringLiteral("ROO-Quintana Roo"),
            QStringLiteral("SLP-San Luis Potosí"),
            QStringLiteral("SIN-Sinaloa"),
            QStringLiteral("SON-Sonora"),
            QStringLiteral("TAB-Tabasco"),
            QStringLiteral("TAM-Tamaulipas"),
            QStringLiteral("TLA-Tlaxcala"),
            QStringLiteral("VER-Veracruz"),
            QStringLiteral("YUC-Yucatán"),
            QStringLiteral("ZAC-Zacatecas")};
}

}  // namespace kaldo
