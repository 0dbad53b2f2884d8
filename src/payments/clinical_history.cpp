#include "payments/clinical_history.h"

#include <QVariant>

#include <array>

namespace kaldo {

namespace {

/// A column of `antecedentes`; width 0 is its one number.
struct Column {
    const char *name;
    int width;
};

constexpr std::array<Column, 96> kColumns{{
    {"HEREDO_FAM", 100},
    {"NOPATOLOGICOS", 100},
    {"APARATODIGESTIVO", 1},
    {"DIFRESPIRATORIA", 1},
    {"CARDIOPATIAS", 1},
    {"HIPERTENSION", 1},
    {"HIPORTENSION", 1},
    {"HEMORRAGIA", 1},
    {"FIEBREREUMATICA", 1},
    {"HEPATITIS", 1},
    {"NEUROSICOLOGICAS", 1},
    {"DIABETES", 1},
    {"PADRENALES", 1},
    {"TABAQUISMO", 1},
    {"HIPERTIROIDISMO", 1},
    {"HIPOTIROIDISMO", 1},
    {"ALCOHOLISMO", 1},
    {"DROGADICCION", 1},
    {"ALERGIAS", 1},
    {"DESCR_ALERGIAS", 100},
    {"ANESTESIA", 1},
    {"MEDICAMENTO", 1},
    {"ALIMENTO", 18},
    {"AG_FISICOAMB", 1},
    {"OTRALERGIA", 1},
    {"ESPECIFIQUE", 100},
    {"ENTRATAMIENTO", 1},
    {"TIPO", 80},
    {"TIPOMEDICAMENTO", 100},
    {"TOMA_HAB_MED", 1},
    {"CUALTOMA", 100},
    {"DOSIS", 100},
    {"INT_MEDICAMENTO", 1},
    {"CUALESMED", 100},
    {"INTANALGECICOS", 1},
    {"CUALANALGECICO", 100},
    {"PADECIMIENTOACTUAL", 255},
    {"SIGNOSVITALES", 15},
    {"NIVELGLUCOSA", 0},
    {"HARECIBIDOAD", 1},
    {"LUGAR", 1},
    {"OTROLUGAR", 30},
    {"COND_DIENTES", 1},
    {"COND_TEJ_BLANDOS", 1},
    {"HABITO_CEP", 1},
    {"TARTARO", 1},
    {"CARIES", 1},
    {"ANOMALIAS", 1},
    {"DESGASTE", 1},
    {"OTRODIENTES", 1},
    {"DETALLEDIENTES", 200},
    {"RESEQUEDAD", 1},
    {"FORMALABIOS", 80},
    {"COLORLABIOS", 30},
    {"DEFECTOS", 80},
    {"ESPECIFICARLABIOS", 255},
    {"SABURRAL", 1},
    {"FISURADA", 1},
    {"GEOGRAFICA", 1},
    {"DESCAMACION", 1},
    {"TAMA7OAUMENTADO", 1},
    {"OTROLENGUA", 1},
    {"DETALLELENGUA", 200},
    {"ANOMALIASFRENILLOS", 1},
    {"DETALLEFRENILLOS", 200},
    {"COLORCARRILLOS", 30},
    {"LINEALBA", 1},
    {"MORDISQUEO", 1},
    {"OTROSCARRILLOS", 1},
    {"DETALLECARRILLOS", 200},
    {"COLORPISOBOCA", 30},
    {"AGRANDAMIENTO", 1},
    {"TORUS", 1},
    {"TIPOTORUS", 1},
    {"OTROPISOBOCA", 1},
    {"DETALLEPISOBOCA", 200},
    {"COLORPALADAR", 30},
    {"FORMATAMANO", 100},
    {"TORUSPALADAR", 1},
    {"IRRITACIONES", 1},
    {"UVULA", 1},
    {"OTROPALADAR", 1},
    {"DETALLEPALADAR", 200},
    {"COLORENCIAS", 30},
    {"FORMAENCIAS", 80},
    {"SANGRADO", 1},
    {"EXUDADO", 1},
    {"OTROENCIAS", 1},
    {"DETALLENCIAS", 200},
    {"ANOMALIAMIGDALAS", 1},
    {"INFLAMACION", 1},
    {"INFECCION", 1},
    {"HIPERTROFICAS", 1},
    {"TIPOSALIVA", 1},
    {"ESPECIFIQUESALIVA", 200},
    {"ESPECIFIQUEHABITOS", 60},
}};

}  // namespace

Parameters emptyClinicalHistory(int folio) {
    Parameters parameters{{QStringLiteral("FOLIO"), folio}};
    for (const Column &column : kColumns) {
        QVariant value;
        if (column.width > 0) {
            value = column.width == 1 ? QStringLiteral("N") : QStringLiteral("");
        }
        parameters.append({QString::fromLatin1(column.name), value});
    }
    return parameters;
}

}  // namespace kaldo
