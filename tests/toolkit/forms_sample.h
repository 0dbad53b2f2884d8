#pragma once

#include <QStandardItemModel>
#include <QVBoxLayout>

#include "toolkit/forms/form.h"
#include "toolkit/forms/messages.h"

namespace kaldo::test {

/// A model whose columns are named as those of a query, with raw values in the edit role.
class SampleModel : public QStandardItemModel {
public:
    SampleModel(const QStringList &fields, const QList<QVariantList> &rows) {
        setHorizontalHeaderLabels(fields);
        for (const QVariantList &values : rows) {
            QList<QStandardItem *> items;
            for (const QVariant &value : values) {
                auto *item = new QStandardItem;
                item->setData(value, Qt::EditRole);
                items += item;
            }
            appendRow(items);
        }
    }
};

/// A form with a field of each kind, as a working screen would have them.
class SampleForm : public QWidget {
public:
    SampleForm()
        : prices({QStringLiteral("CVE_PROD"), QStringLiteral("DESCR"), QStringLiteral("MENUDEO")},
                 {{1, QStringLiteral("AMALGAMA"), 250.0},
                  {2, QStringLiteral("BLANQUEAMIENTO"), 1800.5},
                  {12, QStringLiteral("CORONA"), 3200.0},
                  {20, QStringLiteral("NIÑOS: SELLADOR"), 150.0}}),
          lines({QStringLiteral("CVE_PROD"), QStringLiteral("DESCRIPCION"), QStringLiteral("CANT"),
                 QStringLiteral("PRECIO"), QStringLiteral("TOTAL"), QStringLiteral("SECRETO")},
                {{1, QStringLiteral("AMALGAMA"), 2, 250.0, 500.0, 7},
                 {12, QStringLiteral("CORONA"), 1, 3200.0, 3200.0, 8}}) {
        using namespace form;
        const LookupSource source{
            &prices,
            QStringLiteral("CVE_PROD"),
            QStringLiteral("DESCR"),
            {{QStringLiteral("DESCR"), QStringLiteral("Descripción"), 30},
             {QStringLiteral("MENUDEO"), QStringLiteral("Precio"), 12, CellMask::MoneyTight}}};
        setObjectName(QStringLiteral("FRM401"));
        setWindowTitle(QStringLiteral("Registro Pagos"));
        build(this,
              column({
                  row({choice(&service, "ComboBox1", "Tipo de Servicio")
                           .items({"AD - ADMISION", "AE - APERTURA DE EXPEDIENTE",
                                   "ES - ESPECIALIDADES", "EX - EXAMENES DE ESPECIALIDADES"}),
                       label(QStringLiteral("Nota de Pago")).bold(),
                       number(&note, "Edit1").accessible("Nota de Pago").range(0, 2147483647)}),
                  row({lookup(&area, "ComboBox2", "Clasif. del Servicio").source(source).shown(34),
                       iconButton(nullptr, "BitBtn9", "Activar Filtro de Busqueda", "filter")}),
                  strip(&patient, "Panel3",
                        {text(&dossier, "Edit2", "Expediente").upper().width(8),
                         text(&paternal, "Edit3", "Paterno").upper().width(40).grow(),
                         text(&given, "Edit5", "Nombre").upper().width(40).grow()}),
                  row({date(&birth, "DateEdit2", "Fec. de Nacimiento"),
                       masked(&phone, "MaskEdit1", "Teléfono").mask("(   )   -    "),
                       radio(&sex, "RadioGroup2", "Sexo").options({"Femenino", "Masculino"}),
                       stretch()}),
                  grid(&table, "DBGrid1")
                      .columns(
                          {GridColumn("CVE_PROD", "Clave", 8)
                               .mask(CellMask::Integer)
                               .editable()
                               .lookup(source),
                           GridColumn("DESCRIPCION", "Descripción", 30)
                               .editable()
                               .upper()
                               .limit(20)
                               .stretch(),
                           GridColumn("CANT", "Cant", 6).mask(CellMask::Integer).editable(),
                           GridColumn("PRECIO", "Precio", 12).mask(CellMask::MoneyTight).editable(),
                           GridColumn("TOTAL", "Total", 12).mask(CellMask::MoneyTight).sum()})
                      .accessible("Conceptos de la nota")
                      .grow(),
                  row({money(&pesos, "CEdit4", "Pesos"),
                       money(&total, "CEdit3", "Importe Total").readOnly(), stretch()}),
                  memo(&remarks, "Memo1", "Descripción Adicional").upper().width(30).lines(2),
                  check(&always, "CheckBox1", "Iniciar siempre con este usuario"),
                  line(),
                  row({stretch(), button(&save, "BitBtn1", "&Registrar Información").icon("save"),
                       button(&close, "BitBtn2", "&Cerrar Ventana").icon("close").escape()}),
              }));
        table->setModel(&lines);
        total->setValue(3700);
    }

    SampleModel prices;
    SampleModel lines;
    Choice *service = nullptr;
    NumberField *note = nullptr;
    LookupField *area = nullptr;
    QWidget *patient = nullptr;
    TextField *dossier = nullptr;
    TextField *paternal = nullptr;
    TextField *given = nullptr;
    DateField *birth = nullptr;
    MaskedField *phone = nullptr;
    RadioGroup *sex = nullptr;
    DataGrid *table = nullptr;
    MoneyField *pesos = nullptr;
    MoneyField *total = nullptr;
    Memo *remarks = nullptr;
    CheckField *always = nullptr;
    Button *save = nullptr;
    Button *close = nullptr;
};

}  // namespace kaldo::test
