#include "tests/payments/frm401_fixture.h"

#include "toolkit/forms/lookup_field.h"

#include <QAbstractProxyModel>
#include <QTableView>

namespace kaldo {
namespace {

using test::child;
using test::picture;
using test::press;
using test::typeText;

constexpr char kNotFound[] =
    "Este expediente no se encuentra registrado, vuelva a capturar un expediente valido.";
constexpr char kUseAna[] = "Desea usar la información seleccionada de ANA LUISA PEREZ LOPEZ ?";

class PaymentNoteDossier : public test::PaymentNoteFixture {
protected:
    /// Up to the dossier field of the adults' clinic, which asks for a place and for an age.
    void startAdults(const QString &usuario = "cajero1") {
        open(usuario);
        chooseService("AP");
        chooseArea("ADUL");
        choosePlace("CLINICA INT");
        EXPECT_EQ(focused(), "Edit2");
    }
    /// The same in an area without age limits nor places.
    void startRadiology() {
        open();
        chooseService("AP");
        chooseArea("RADIO");
        EXPECT_EQ(focused(), "Edit2");
    }
    void search(const QString &number) {
        typeText(number);
        press(Qt::Key_Return);
    }
    void expectNothingOfADossier() {
        for (const char *field :
             {"Edit2", "Paterno", "Materno", "Nombre", "Matricula", "Alumno", "TipoPaciente"}) {
            EXPECT_EQ(text(field), "") << field;
        }
        EXPECT_FALSE(shown("PanelEmpleado"));
        EXPECT_FALSE(shown("PanelOrigen"));
        EXPECT_FALSE(enabled("AgregarRegistro"));
    }
};

TEST_F(PaymentNoteDossier, AShortNumberIsCompletedAndTheStudentChargesTheLines) {
    startAdults();
    station.messages.expectConfirmation(kUseAna, Answer::Yes);
    search("1/24");
    EXPECT_EQ(text("Edit2"), "00001/24");
    EXPECT_EQ(text("Paterno"), "PEREZ");
    EXPECT_EQ(text("Materno"), "LOPEZ");
    EXPECT_EQ(text("Nombre"), "ANA LUISA");
    EXPECT_TRUE(child<QLineEdit>(screen.get(), "Paterno")->isReadOnly());
    EXPECT_EQ(text("TipoPaciente"), "PACIENTE GENERAL");
    EXPECT_EQ(text("Matricula"), "1100001");
    EXPECT_EQ(focused(), "Matricula");
    EXPECT_FALSE(enabled("AgregarRegistro"));
    press(Qt::Key_Return);
    EXPECT_EQ(text("Alumno"), "ALVAREZ CANO JIMENA");
    addLine("1", "2");
    picture(screen.get(), "dossier-line");
    EXPECT_TRUE(enabled("Registrar"));
    EXPECT_EQ(lines().count(), 1);
}

TEST_F(PaymentNoteDossier, WithoutStudentsTheLinesFollowAtOnce) {
    station.options.sector = Sector::Institucional;
    startAdults();
    EXPECT_FALSE(shown("PanelAlumno"));
    station.messages.expectConfirmation(kUseAna, Answer::Yes);
    search("00001/24");
    EXPECT_EQ(focused(), "AgregarRegistro");
}

TEST_F(PaymentNoteDossier, LaboratoriesTakeADossierAndDiplomasNoStudent) {
    open();
    chooseService("LE");
    chooseArea("LAB");
    EXPECT_EQ(focused(), "Edit2");
    station.messages.expectConfirmation(kUseAna, Answer::Yes);
    search("1/24");
    EXPECT_EQ(focused(), "Matricula");
    screen.reset();
    open();
    chooseService("AP");
    chooseArea("SERV");
    station.messages.expectConfirmation(kUseAna, Answer::Yes);
    search("1/24");
    EXPECT_EQ(focused(), "AgregarRegistro");
}

TEST_F(PaymentNoteDossier, AnotherDossierEmptiesTheLinesOfTheFirst) {
    station.options.sector = Sector::Institucional;
    startRadiology();
    station.messages.expectConfirmation(kUseAna, Answer::Yes);
    search("1/24");
    addLine("1");
    EXPECT_TRUE(enabled("Registrar"));
    tabTo("Edit2", false);
    station.messages.expectConfirmation(
        "Desea usar la información seleccionada de RICARDO NUÑEZ ARAGON ?", Answer::Yes);
    press(Qt::Key_A, Qt::ControlModifier);
    search("2/24");
    EXPECT_EQ(lines().count(), 0);
    EXPECT_EQ(text("CEdit3"), "$0.00");
    EXPECT_FALSE(enabled("Registrar"));
    EXPECT_TRUE(enabled("ComboBox1"));
}

TEST_F(PaymentNoteDossier, OfADossierThatIsNotTakenNothingStays) {
    startAdults();
    station.messages.expectConfirmation(kUseAna, Answer::No);
    search("00001/24");
    expectNothingOfADossier();
    EXPECT_EQ(focused(), "Edit2");

    station.messages.expectInformation(kNotFound);
    search("77777/24");
    expectNothingOfADossier();
    EXPECT_EQ(focused(), "Edit2");

    // Quotes, percent signs and signs of the search itself are plain text.
    for (const char *number : {"%", "'", "_0001/24", "\"", "0/"}) {
        station.messages.expectInformation(kNotFound);
        search(number);
        EXPECT_EQ(text("Edit2"), "") << number;
    }
    // One that isn't found takes the earlier one off the screen.
    station.messages.expectConfirmation(kUseAna, Answer::Yes);
    search("00001/24");
    EXPECT_EQ(text("Paterno"), "PEREZ");
    tabTo("Edit2", false);
    station.messages.expectInformation(kNotFound);
    search("77777/24");
    expectNothingOfADossier();
}

TEST_F(PaymentNoteDossier, TheAgeOfTheAreaDecides) {
    startAdults();
    // Born in 2010: 14 years on the day of the admission.
    station.messages.expectInformation(
        "La edad del paciente es de 14 años y no corresponde a la categoría de ADULTOS");
    search("00005/24");
    expectNothingOfADossier();
    EXPECT_EQ(focused(), "Edit2");
    station.messages.expectConfirmation(
        "Desea usar la información seleccionada de PATRICIO ZUÑIGA O'FARRILL ?", Answer::Yes);
    search("00006/24");
    EXPECT_EQ(text("Materno"), "O'FARRILL");
}

TEST_F(PaymentNoteDossier, ACancelledDossierEndsSilentlyOnlyWhereAnAgeIsAsked) {
    startAdults();
    station.messages.expectInformation(
        "El expediente se encuentra cancelado, revise la infrmación.");
    search("00014/24");
    expectNothingOfADossier();
    EXPECT_EQ(focused(), "Edit2");
}

TEST_F(PaymentNoteDossier, WithoutAnAgeACancelledDossierIsTakenOver) {
    startRadiology();
    station.messages.expectInformation(
        "El expediente se encuentra cancelado, revise la infrmación.");
    station.messages.expectConfirmation(
        "Desea usar la información seleccionada de TOMAS VILLA SANCHEZ ?", Answer::Yes);
    search("00014/24");
    EXPECT_EQ(text("Edit2"), "00014/24");
    EXPECT_EQ(text("Paterno"), "VILLA");
}

TEST_F(PaymentNoteDossier, ADossierOfAnotherCentreNeedsTheOption) {
    startAdults();
    const QString centre = "CLINICA DE ESPECIALIDADES VALLE NORTE";
    station.messages.expectInformation(
        "Este espediente pertenece a: " + centre +
        ". No tiene los permisos necesarios para utilizarlo, consúltelo con su analista.");
    search("00015/24");
    expectNothingOfADossier();

    station.options.ExpedientesOtrosCentros = true;
    station.messages.expectConfirmation(
        "Desea usar la información seleccionada de GABRIELA HERRERA DIAZ ?", Answer::Yes);
    search("00015/24");
    EXPECT_TRUE(shown("PanelOrigen"));
    EXPECT_EQ(labelText("Origen"), centre.toStdString());
    picture(screen.get(), "dossier-origin");
}

TEST_F(PaymentNoteDossier, ABenefitNeedsAnEmployeeWhoIsStillOne) {
    startAdults();
    station.messages.expectConfirmation(
        "Desea usar la información seleccionada de CESAR IVAN ROBLES NUÑEZ ?", Answer::Yes);
    station.messages.expectInformation(
        "El Empleado NO esta vigente, consulte con R.H. ó cambie la prestación del expediente. ");
    search("00013/24");
    EXPECT_FALSE(enabled("AgregarRegistro"));
    EXPECT_FALSE(shown("PanelEmpleado"));

    station.messages.expectConfirmation(
        "Desea usar la información seleccionada de ARTURO SALCIDO MENDEZ ?", Answer::Yes);
    search("00007/24");
    EXPECT_TRUE(shown("PanelEmpleado"));
    EXPECT_EQ(labelText("Empleado"), "1001 ARTURO SALCIDO MENDEZ");
    EXPECT_EQ(labelText("Dependencia"), "SERVICIOS GENERALES");
    EXPECT_EQ(text("TipoPaciente"), "EMPLEADO ADMINISTRATIVO");
    picture(screen.get(), "dossier-employee");
    press(Qt::Key_Return);
    addLine("1");
    // Benefits are not counted at this desk yet.
    EXPECT_EQ(text("CEdit1"), "$0.00");

    // A dossier without a class pays as anyone, whoever was here before.
    test::run(station.clinic(),
              "update expedientes set prestacion=0 where expediente='00002/24' and campus='VAN'");
    tabTo("Edit2", false);
    station.messages.expectConfirmation(
        "Desea usar la información seleccionada de RICARDO NUÑEZ ARAGON ?", Answer::Yes);
    search("2/24");
    EXPECT_EQ(text("TipoPaciente"), "");
    EXPECT_EQ(station.caja.Prestaciones1.integer("prestacion"), 1);
}

TEST_F(PaymentNoteDossier, TheListIsOpenedByF5AndPicksByEnter) {
    startAdults();
    press(Qt::Key_F5);
    auto *list = child<LookupField>(screen.get(), "ListaExpedientes");
    EXPECT_TRUE(list->listOpen());
    picture(list->list(), "dossier-list");
    // Adults of this centre, none cancelled.
    NamedQuery &rows = station.odonto.CargarExp;
    EXPECT_GT(rows.count(), 5);
    EXPECT_FALSE(rows.locate({{"EXPEDIENTE", "00014/24"}}));
    EXPECT_FALSE(rows.locate({{"EXPEDIENTE", "00003/24"}}));
    EXPECT_FALSE(rows.locate({{"EXPEDIENTE", "00015/24"}}));

    press(Qt::Key_Escape);
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(focused(), "Edit2");

    press(Qt::Key_F5);
    typeText("00001");
    station.messages.expectConfirmation(kUseAna, Answer::Yes);
    press(Qt::Key_Return);
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(text("Edit2"), "00001/24");
    EXPECT_EQ(focused(), "Matricula");
}

TEST_F(PaymentNoteDossier, TheFilterNarrowsTheList) {
    startAdults();
    auto *filter = child<QAbstractButton>(screen.get(), "FiltroExpedientes");
    EXPECT_EQ(filter->toolTip(), "Activar Filtro de Busqueda");
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "FiltroExpedientes");
    press(Qt::Key_Space);
    EXPECT_EQ(filter->toolTip(), "Desactivar Filtro de Busqueda");
    EXPECT_EQ(focused(), "Edit2");
    press(Qt::Key_F5);
    auto *list = child<LookupField>(screen.get(), "ListaExpedientes");
    EXPECT_TRUE(list->list()->filterLine()->isVisible());
    picture(list->list(), "dossier-list-filter");
}

TEST_F(PaymentNoteDossier, F8RepeatsTheLastOneOpened) {
    startAdults();
    typeText("5");
    press(Qt::Key_F8);
    EXPECT_EQ(text("Edit2"), "5");
    station.session.UltimoExpediente = QString("00001/24");
    press(Qt::Key_F8);
    EXPECT_EQ(text("Edit2"), "00001/24");
}

TEST_F(PaymentNoteDossier, TheFaceAreaListsTheConceptsOfTheAge) {
    const auto start = [this](const QString &number, const QString &question) {
        open("cajero3");
        chooseService("ES");
        chooseArea("ORTO");
        choosePlace("CLI");
        station.messages.expectConfirmation(question, Answer::Yes);
        search(number);
    };
    // The concepts that the drop-down of "Clave" shows.
    const auto offered = [this] {
        press(Qt::Key_Return);
        press(Qt::Key_F4);
        const auto *list = QApplication::activePopupWidget()->findChild<QTableView *>();
        QAbstractItemModel *prices =
            qobject_cast<QAbstractProxyModel *>(list->model())->sourceModel();
        while (prices->canFetchMore({})) {
            prices->fetchMore({});
        }
        EXPECT_GT(prices->rowCount(), 10);
        const int descr = fieldSection(*prices, "DESCR");
        QStringList names;
        for (int row = 0; row < prices->rowCount(); ++row) {
            const QString name = prices->index(row, descr).data().toString();
            if (name.contains("FACE")) {
                names += name;
            }
        }
        picture(QApplication::activePopupWidget(), "lines-concepts");
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
        EXPECT_EQ(focused(), "AgregarRegistro");
        return names.size() + (names.filter("FACE 1").size() * 100);
    };
    station.options.sector = Sector::Institucional;
    start("00016/24", "Desea usar la información seleccionada de MAURICIO QUIROZ LEAL ?");
    EXPECT_EQ(offered(), 404);
    screen.reset();
    start("00015/24", "Desea usar la información seleccionada de GABRIELA HERRERA DIAZ ?");
    EXPECT_EQ(offered(), 3);

    // A treatment with a balance is charged once.
    test::run(station.clinic(),
              "insert into registrovtas (num_caja, nota_vta, status, recibo) values (12, 900, "
              "'GE', '12-900')");
    test::run(station.clinic(),
              "insert into historicoodontologia (expediente, codigo, num_caja, nota_vta) values "
              "('00015/24', 96029, 12, 900)");
    test::run(station.clinic(),
              "insert into anticipos (campus, expediente, recibo_anticipo, importe_tot, saldo) "
              "values ('VAN', '00015/24', '12-900', 100, 50)");
    press(Qt::Key_Return);
    typeText("29");
    station.messages.expectInformation(
        "El tratamiento ya está registrado y tiene saldo pendiente, registre un abono.");
    press(Qt::Key_Return);
    EXPECT_TRUE(lines().isNull("CVE_PROD"));
    EXPECT_EQ(lines().text("DESCRIPCION"), "");
    // Nor is it by an empty key, though the price list stands on it.
    station.messages.expectInformation(
        "El tratamiento ya está registrado y tiene saldo pendiente, registre un abono.");
    press(Qt::Key_Return);
    EXPECT_EQ(lines().text("DESCRIPCION"), "");
    typeText("31");
    press(Qt::Key_Return);
    EXPECT_EQ(lines().text("DESCRIPCION"), "ORTODONCIA CORRECTIVA FACE 2");
}

}  // namespace
}  // namespace kaldo
