#pragma once

#include <QHash>
#include <QWidget>

#include <functional>

#include "app/binding.h"
#include "app/context.h"
#include "app/list_hint.h"
#include "data/named_query.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/data_grid.h"
#include "toolkit/forms/form.h"

namespace kaldo {

enum class CatalogueMode { Consult, Edit };

/// What Enter in a column leads to, after the column's own test.
enum class EnterResult {
    Next,  ///< on to the next column; on the last one it saves
    Stay,  ///< the cursor stays, or the handler has moved it
    Save,
};

/// What happens to the row that is open when the database refuses to write it. The failure is shown
/// in both cases.
enum class WriteFailure { KeepsRowOpen, CancelsEdit };

/// What a catalogue is: its query, its columns, and where it differs from the others. All but
/// query and columns may be left out.
struct CatalogueRules {
    NamedQuery *query = nullptr;
    /// The values of each opening.
    std::function<Parameters()> parameters;
    /// The fields that find the row again after it was saved.
    QStringList keys;
    /// Those that are editable() take input.
    QList<GridColumn> columns;
    /// Fields that can only be written into a new row.
    QStringList fixedOnEdit;
    /// Where the cursor goes; else to the first column that takes input.
    QString insertAt;
    QString editAt;

    QString saveQuestion = QStringLiteral("¿La Información es Correcta?");
    QString removeQuestion = QStringLiteral("¿Desea borrar esta Información?");
    /// The columns that tell which row would be deleted; else the first two.
    QStringList toldBy;
    WriteFailure writeFailure = WriteFailure::KeepsRowOpen;

    /// False: "&Insertar" does nothing. Runs before the row is appended.
    std::function<bool()> prepareInsert;
    /// True: a new row stands above the others, else below them.
    bool insertsFirst = false;
    /// Fills what a new row begins with.
    std::function<void(NamedQuery &row)> defaults;
    /// Opens the current row; else query->edit().
    std::function<void()> openRow;
    /// By field.
    QHash<QString, std::function<EnterResult()>> enter;
    /// Before the question of "&Grabar"; false keeps the row open.
    std::function<bool()> accept;
    /// After it: the last values of the row; false keeps the row open.
    std::function<bool()> complete;
    /// Writes the row; else query->apply().
    std::function<void()> write;
    /// After the row was written, found again and consult mode entered.
    std::function<void()> saved;
    /// After a No to "&Grabar", before the change is dropped.
    std::function<void()> saveRefused;
    /// After the question of "&Borrar"; false leaves the row.
    std::function<bool()> mayRemove;
    /// Deletes the row; else query->remove() and apply().
    std::function<void()> remove;
    /// Instead of "&Cancelar", after a No to "&Borrar".
    std::function<void()> removeRefused;
    /// Drops the change; else query->cancelUpdates().
    std::function<void()> drop;
    /// After every change of the mode, and after every reload.
    std::function<void(CatalogueMode)> modeChanged;

    /// What the list says while its query is closed: what the user has to choose first.
    QString waitsFor;
    /// A small catalogue inside a screen has no navigator and leaves the preview alone.
    bool small = false;
    /// False where there is no report: the preview's entry stays disabled.
    bool reports = true;
};

/// The list of a catalogue with its buttons: "&Insertar", "&Borrar", "&Grabar", "&Cancelar", the
/// navigator, and a grid that is read-only in consult mode and holds one open row in edit mode.
/// A row is written as soon as it is saved or deleted. A panel and not a window, since two fit one
/// screen; where there are two, Alt and a letter belong to the one that has the focus.
class CataloguePanel : public QWidget {
    Q_OBJECT

public:
    CataloguePanel(Context &context, QWidget *parent, const QString &name);
    /// An open row is dropped.
    ~CataloguePanel() override;

    /// Once, before anything else.
    void setRules(CatalogueRules rules);

    /// Opens the query anew, on its first row, in consult mode.
    void reload();
    /// The same from the outside, for when the screen comes to the front: the cursor stays where it
    /// was, and a row that is open stays open.
    void refresh();

    void insert();
    void edit();
    void save();
    void cancel();
    void remove();

    CatalogueMode mode() const { return mode_; }
    bool editing() const { return mode_ == CatalogueMode::Edit; }
    bool inserting() const { return editing() && inserting_; }
    /// "&Grabar" can be pressed from now on: the row has passed its tests.
    void allowSave();
    /// "&Borrar" can be pressed although a new row is open; it drops that row.
    void allowRemove();
    /// Off until the screen has what its rows belong to.
    void setInsertAllowed(bool allowed);

    /// A box, the field is cleared and keeps the cursor; a new row without its key can't be saved.
    EnterResult refuse(const QString &field, const QString &text);
    EnterResult refuseWarning(const QString &field, const QString &text);
    /// "Campo Obligatorio, vuelva a intentar": the cursor stays.
    EnterResult required();
    /// The same for a row that is to be saved: true while the field holds something, else the
    /// cursor goes to it, or to the column that gives it its value.
    bool filled(const QString &field, const QString &column = {});

    /// A field of a detail page: it follows a column of the row, read-only in consult mode.
    template <typename F>
    void addDetail(F *field, const QString &column) {
        bindField(field, rules_.query, column);
        details_ += field;
        field->setFieldReadOnly(!editing());
    }

    /// A field that takes input in consult mode too: the row is open from the first stroke on.
    void addOpenDetail(NumberField *field, const QString &column);

    NamedQuery &query() const { return *rules_.query; }
    DataGrid *grid() const { return grid_; }
    Button *insertButton() const { return insert_; }

signals:
    /// The cursor of the query stands on another row, or the query was opened anew.
    void rowChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void build();
    void setMode(CatalogueMode mode);
    void updateButtons();
    void applyColumnsOfMode();
    void enterColumn(const QString &field);
    void editAt(const QString &wanted);
    void editInPlace();
    Parameters keyValues() const;
    /// False while a cell or a detail field holds what it can't take; it has told so.
    bool commitInput();
    bool keysFilled();
    /// A new row's key has passed its tests; where it hasn't been asked, it is now.
    bool keyAccepted();
    void keyEdited(const QString &field);
    EnterResult cleared(const QString &field);
    void writeRow();
    void removeRow();
    /// On this row, or on the last one where there are fewer.
    void reloadAt(int row);
    void go(int row);
    void shareLetters();
    void setLetters(bool on);

    Context &context_;
    CatalogueRules rules_;
    QList<Field *> details_;
    Field *openDetail_ = nullptr;
    Button *insert_ = nullptr;
    Button *remove_ = nullptr;
    Button *save_ = nullptr;
    Button *cancel_ = nullptr;
    QList<IconButton *> navigator_;
    DataGrid *grid_ = nullptr;
    ListHint *hint_ = nullptr;
    CatalogueMode mode_ = CatalogueMode::Consult;
    bool inserting_ = false;
    bool insertAllowed_ = true;
    bool saveAllowed_ = false;
    bool removeAllowed_ = false;
};

/// Gives the letter of a button's caption away, for one that a button of the list has too.
void withoutLetter(Button *button);

/// The panel as a piece of a form.
form::WidgetItem<CataloguePanel> catalogue(CataloguePanel **where, Context &context,
                                           const QString &name, CatalogueRules rules);

}  // namespace kaldo
