#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "app/catalogue_panel.h"
#include "app/screen.h"
#include "tests/support/accessibility.h"
#include "tests/support/documents.h"
#include "tests/support/keys.h"
#include "tests/support/seams.h"
#include "tests/support/test_station.h"

namespace kaldo::test {

inline const QString kSave = QStringLiteral("¿La Información es Correcta?");
inline const QString kRemove = QStringLiteral("¿Desea borrar esta Información?");

/// What a server says that went away before the commit.
inline const QString kNoServer = QStringLiteral("El servidor no contesta.");

/// A catalogue over the example school, driven by keys.
template <typename S>
class CatalogueTest : public ::testing::Test {
protected:
    CatalogueTest() { station.logIn("admin"); }

    /// Set options before.
    void open() {
        screen.reset();
        screen = std::make_unique<S>(station.context);
        screen->resize(screen->sizeHint().expandedTo({820, 500}));
        screen->open();
        showActive(screen.get());
        grid()->setFocus();
        settle();
        checkAccessibility(*screen);
    }
    CataloguePanel *panel() { return child<CataloguePanel>(screen.get(), panelName()); }
    DataGrid *grid() { return panel()->grid(); }
    /// "SpeedButton1" to "SpeedButton4".
    Button *button(const char *name) { return child<Button>(panel(), name); }
    NamedQuery &query() { return panel()->query(); }

    /// The panel's name within its screen.
    virtual QString panelName() const = 0;

    /// Types and leaves the field or cell by Enter.
    static void enter(const QString &text) {
        typeText(text);
        press(Qt::Key_Return);
    }
    static void alt(Qt::Key key) { press(key, Qt::AltModifier); }
    void answer(const QString &question, Answer answer = Answer::Yes) {
        station.messages.expectConfirmation(question, answer);
    }
    QVariant inClinic(const QString &text, const Parameters &values = {}) {
        return valueOf(station.clinic(), text, values);
    }

    void changeInClinic(const QString &text, const Parameters &values = {}) {
        run(station.clinic(), text, values);
    }
    /// The n-th write from now on fails, and its box is expected.
    void refuseWrite(int nth = 1) {
        seam_.strike(Moment::BeforeCommit, atWrite(nth), refusing(kNoServer));
        station.conexion.setSeam(&seam_);
        station.messages.expectError(kNoServer);
    }
    /// What the screen previews; its pages become pictures where these are asked for.
    report::Document preview(const QString &name) {
        station.printing.records.clear();
        screen->previewReport();
        if (station.printing.records.isEmpty()) {
            return {};
        }
        const report::Document document = station.printing.records.last().document;
        pagePictures(document, name);
        EXPECT_TRUE(readsCleanly(document));
        return document;
    }

private:
    TestSeam seam_;

protected:
    TestStation station;
    std::unique_ptr<S> screen;
};

}  // namespace kaldo::test
