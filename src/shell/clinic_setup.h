#pragma once

#include <QList>
#include <QString>

#include "app/context.h"

namespace kaldo {

/// The ages that a sales area is for, in years, both included.
struct AgeRange {
    int tipoProd = 0;
    int lowest = 0;
    int highest = 0;
};

/// What a clinic needs before its first note. Texts stand as they are written into the tables.
struct SetupValues {
    QString ciudad;        ///< campus code, 3 characters
    QString nombreCiudad;  ///< of the station
    int estado = -1;       ///< index in federalStates()
    QString campus;        ///< "2 - Valle Norte"; empty where the sector has none

    QString centro;  ///< 2 characters, capitals
    QString descr, domicilio, colonia, telefono;

    int caja = 0;
    QString nombreCaja;  ///< capitals

    QString usuario, pass;
    QString nombreCajero;  ///< capitals

    bool universal = false;  ///< one dossier counter for all campuses
    QList<AgeRange> edades;
};

/// The number of the first note of a year: 2024 gives 2024000001.
int firstNote(int anio);

/// Fills the tables of an empty clinic in a fixed order, each row written before the next. A
/// failure undoes nothing; run() then goes on at the step that failed, so that what stood in its
/// way can be mended first.
class ClinicSetup {
public:
    /// The steps, named by what they write.
    enum Step {
        CareCentre,
        CashDesk,
        DossierCounters,
        FirstUser,
        Cashier,
        AgeRanges,
        Rights,
        FinanceUser,
        Done,
    };

    explicit ClinicSetup(Context &context) : context_(&context) {}

    void run(const SetupValues &values);
    /// The first step that has not been done.
    Step next() const { return next_; }

private:
    void write(Step step, const SetupValues &values);
    void writeCareCentre(const SetupValues &values);
    void writeCashDesk(const SetupValues &values);
    void writeDossierCounters(const SetupValues &values);
    void writeFirstUser(const SetupValues &values);
    void writeCashier(const SetupValues &values);
    void writeAgeRanges(const SetupValues &values);
    void writeRights(const SetupValues &values);
    void writeFinanceUser(const SetupValues &values);

    Context *context_;
    Step next_ = CareCentre;
};

}  // namespace kaldo
