#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace kaldo {

/// A row of the undergraduate roll: one programme of one student.
struct RollRow {
    QString paterno;
    QString materno;
    QString nombre;
    int unidadClave = 0;
    QString unidadDesc;
    int vigenciaClave = 0;  ///< 1 while current
};

enum class StudentOutcome {
    Accepted,      ///< one current row of an accepted faculty
    OtherFaculty,  ///< one current row of another one
    Several,       ///< more than one row: the user chooses
    NotCurrent,    ///< one row that is not current
    NotOnRoll      ///< no row: ask the postgraduate roll
};

struct StudentLookup {
    StudentOutcome outcome = StudentOutcome::NotOnRoll;
    QString alumno;      ///< the name, empty when not on the roll
    QString unidadDesc;  ///< the faculty, trimmed
};

/// What the rows that a student number yields mean. `acceptsUnit` is asked only for one current
/// row.
StudentLookup lookUpStudent(const QList<RollRow> &rows,
                            const std::function<bool(int)> &acceptsUnit);

/// The three academic units whose students the dialogs of the school accept, whatever the station.
bool isSchoolUnit(int unidadClave);

}  // namespace kaldo
