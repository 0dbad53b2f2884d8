#include "people/age.h"
#include "people/dossier_number.h"
#include "people/employee.h"
#include "people/names.h"
#include "people/repeated_patient.h"
#include "people/student.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

TEST(Age, CountsWholePeriodsOf365AndAQuarterDays) {
    const QDate today(2026, 11, 22);
    EXPECT_EQ(ageInYears(today, today), 0);
    EXPECT_EQ(ageInYears(QDate(2025, 11, 22), today), 0);  // 365 days are not yet a year
    EXPECT_EQ(ageInYears(QDate(2025, 11, 21), today), 1);
    EXPECT_EQ(ageInYears(QDate(2008, 11, 22), today), 17);  // 6574 days, 17.998 years
    EXPECT_EQ(ageInYears(QDate(2008, 11, 21), today), 18);
    EXPECT_TRUE(birthDatePlausible(QDate(1926, 1, 1), today, 100));
    EXPECT_FALSE(birthDatePlausible(QDate(1925, 1, 1), today, 100));
    EXPECT_TRUE(birthDatePlausible(QDate(1925, 1, 1), today, 110));
    EXPECT_FALSE(birthDatePlausible(today.addDays(1), today, 100));
    EXPECT_FALSE(birthDatePlausible(QDate(), today, 100));
    EXPECT_EQ(tipoPacienteOf(13, 13), "I");
    EXPECT_EQ(tipoPacienteOf(14, 13), "A");
    EXPECT_EQ(tipoPacienteOf(14, 14), "I");
}

TEST(Age, ChoosesWhichDossiersAreListed) {
    const auto filter = [](int low, int high, const char *area, bool others) {
        const DossierListFilter found = dossierListFilter(low, high, area, others);
        return found.tipo + QLatin1Char('/') + found.ban;
    };
    EXPECT_EQ(filter(1, 14, "INFANTIL", true), "I/1");
    EXPECT_EQ(filter(1, 14, "INFANTIL", false), "I/2");
    EXPECT_EQ(filter(15, 100, "ADULTOS", false), "A/2");
    EXPECT_EQ(filter(1, 14, "ORTODONCIA", true), "I/3");
    EXPECT_EQ(filter(1, 100, "ENDODONCIA", true), "/3");
    EXPECT_EQ(filter(0, 0, "ENDODONCIA", true), "/1");
    EXPECT_EQ(filter(0, 110, "ENDODONCIA", false), "/2");
}

TEST(DossierNumber, IsCompletedFromWhatWasTyped) {
    EXPECT_EQ(completeDossierNumber("15/23"), "00015/23");
    EXPECT_EQ(completeDossierNumber("15"), "00015/");
    EXPECT_EQ(completeDossierNumber("15/2"), "00015/2");
    EXPECT_EQ(completeDossierNumber("1/2399"), "00001/23");
    EXPECT_EQ(completeDossierNumber("/24"), "00000/24");
    EXPECT_EQ(completeDossierNumber("00015/23"), "00015/23");
    EXPECT_EQ(completeDossierNumber("123456/7"), "123456/7");
}

TEST(WholeName, IsOneTextForWritersAndReaders) {
    EXPECT_EQ(wholeName(" LÓPEZ ", "MARTÍNEZ", " ANA "), "LÓPEZ MARTÍNEZ ANA");
    EXPECT_EQ(wholeName("LÓPEZ", "", "ANA"), "LÓPEZ  ANA");
    EXPECT_EQ(wholeName("LÓPEZ", "MARTÍNEZ", ""), "LÓPEZ MARTÍNEZ");
    EXPECT_EQ(wholeName("", "", ""), "");
    EXPECT_EQ(wholeName(QString(40, 'P'), QString(40, 'M'), "X"),
              QString(40, 'P') + " " + QString(39, 'M'));
}

TEST(Student, RowsOfTheRollDecide) {
    const auto accepts = [](int unit) { return unit == 240; };
    const auto row = [](int unit, int vigencia) {
        return RollRow{" RUIZ ", "SOTO", "EVA ", unit, " ODONTOLOGIA ", vigencia};
    };
    const auto outcome = [&](const QList<RollRow> &rows) {
        return lookUpStudent(rows, accepts).outcome;
    };
    EXPECT_EQ(outcome({}), StudentOutcome::NotOnRoll);
    EXPECT_EQ(outcome({row(240, 1)}), StudentOutcome::Accepted);
    EXPECT_EQ(outcome({row(100, 1)}), StudentOutcome::OtherFaculty);
    EXPECT_EQ(outcome({row(240, 0)}), StudentOutcome::NotCurrent);
    EXPECT_EQ(outcome({row(240, 1), row(100, 0)}), StudentOutcome::Several);
    const StudentLookup found = lookUpStudent({row(100, 1)}, accepts);
    EXPECT_EQ(found.alumno, "RUIZ SOTO EVA");
    EXPECT_EQ(found.unidadDesc, "ODONTOLOGIA");
    for (const int unit : {220, 240, 334}) {
        EXPECT_TRUE(isSchoolUnit(unit));
    }
    EXPECT_FALSE(isSchoolUnit(230));
}

TEST(Employee, OnlyTheMessageTellsWhoIsCurrent) {
    EXPECT_FALSE(isCurrentEmployee(std::nullopt));
    EXPECT_FALSE(isCurrentEmployee(EmployeeRow{"ANA", "1", "D", 1, "EMPLEADO DADO DE BAJA"}));
    EXPECT_TRUE(isCurrentEmployee(EmployeeRow{"ANA", "1", "D", 1, "EMPLEADO VIGENTE"}));
    EXPECT_EQ(patientTypeOfEmployee(1), 2);
    EXPECT_EQ(patientTypeOfEmployee(2), 5);
    EXPECT_EQ(patientTypeOfEmployee(3), std::nullopt);
}

TEST(RepeatedPatient, AsksWithOrWithoutTheDateOfBirth) {
    EXPECT_EQ(repeatedPatientQuestion(QDate(1990, 3, 7), 4, 1532),
              "Este paciente ya se encuentra registrado con fecha de nacimiento: 07/03/1990, Nota "
              "de Admisión: 4-1532. ¿Desea continuar con la admisión?");
    const QString withoutDate =
        "Este paciente ya se registro con la nota: 4-1532. ¿Desea continuar con la admisión?";
    EXPECT_EQ(repeatedPatientQuestion(QDate(1920, 1, 1), 4, 1532), withoutDate);
    EXPECT_EQ(repeatedPatientQuestion(QDate(), 4, 1532), withoutDate);
    EXPECT_NE(repeatedPatientQuestion(QDate(1920, 1, 2), 4, 1532), withoutDate);
}

}  // namespace
}  // namespace kaldo
