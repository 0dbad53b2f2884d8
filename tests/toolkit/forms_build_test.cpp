#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "forms_sample.h"
#include "tests/support/accessibility.h"
#include "tests/support/keys.h"
#include "toolkit/forms/picture_file.h"

namespace kaldo::test {

TEST(FormBuilder, MakesAFormThatKeysAndReadersCanUse) {
    SampleForm form;
    form.resize(1000, 640);
    showActive(&form);
    checkAccessibility(form);
    picture(&form, QStringLiteral("forms_sample"));
    for (QWidget *field : {static_cast<QWidget *>(form.service), static_cast<QWidget *>(form.sex),
                           static_cast<QWidget *>(form.table), static_cast<QWidget *>(form.always),
                           static_cast<QWidget *>(form.dossier)}) {
        moveFocus(field);
        settle();
        picture(&form, QStringLiteral("forms_focus_") + field->objectName());
    }
}

TEST(FormBuilder, TabGoesInTheOrderOfTheExpression) {
    SampleForm form;
    showActive(&form);
    form.service->setFocus();
    QStringList order;
    for (int i = 0; i < 18; ++i) {
        order += keyTarget()->objectName();
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(' ').toStdString(),
              "ComboBox1 Edit1 ComboBox2 BitBtn9 Edit2 Edit3 Edit5 DateEdit2 MaskEdit1 "
              "RadioGroup2_0 DBGrid1 CEdit4 Memo1 CheckBox1 BitBtn1 BitBtn2 ComboBox1 Edit1");
}

TEST(FormBuilder, ACaptionFollowsItsField) {
    SampleForm form;
    showActive(&form);
    auto *caption = child<QLabel>(&form, QStringLiteral("Edit2_label"));
    EXPECT_EQ(caption->buddy(), form.dossier);
    form.dossier->hide();
    EXPECT_FALSE(caption->isVisible());
    form.dossier->show();
    EXPECT_TRUE(caption->isVisible());
    form.dossier->setEnabled(false);
    EXPECT_FALSE(caption->isEnabled());
    form.patient->setEnabled(false);
    EXPECT_FALSE(form.paternal->isEnabled());
}

TEST(FormBuilder, TheCheckFindsWhatItIsFor) {
    QWidget form;
    using namespace kaldo::form;
    TextField *nameless = nullptr;
    Button *first = nullptr;
    Button *clipped = nullptr;
    build(&form, column({text(&nameless, "nameless"), button(&first, "first", "&Aceptar"),
                         button(nullptr, "second", "&Abrir"),
                         button(&clipped, "clipped", "Un texto largo")}));
    first->setFocusPolicy(Qt::NoFocus);
    clipped->setFixedWidth(30);
    showActive(&form);
    EXPECT_EQ(accessibilityFaults(form).size(), 4)
        << accessibilityFaults(form).join('\n').toStdString();
}

TEST(PictureFile, IsReadByWhatItHoldsWhateverItsName) {
    const QTemporaryDir folder;
    QImage red(6, 4, QImage::Format_RGB32);
    red.fill(Qt::red);
    for (const char *format : {"PNG", "BMP"}) {
        const QString file = folder.filePath(QStringLiteral("logo.png"));
        ASSERT_TRUE(red.save(file, format));
        EXPECT_EQ(loadPicture(file).convertToFormat(QImage::Format_RGB32), red) << format;
    }
    QFile text(folder.filePath(QStringLiteral("text.png")));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no es una imagen");
    text.close();
    EXPECT_TRUE(loadPicture(text.fileName()).isNull());
    EXPECT_TRUE(loadPicture(folder.filePath(QStringLiteral("none.png"))).isNull());
    EXPECT_TRUE(loadPicture(folder.path()).isNull());
}

}  // namespace kaldo::test
