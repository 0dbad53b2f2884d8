// The law of the rooms: what each folder of src/ may include, and what may not be written in it.

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QStringList>
#include <array>
#include <optional>

#include <gtest/gtest.h>

namespace {

struct Room {
    const char *folder;
    int level;  // may include rooms of a lower level, and itself
};

// Rooms of one level are neighbours that know nothing of each other.
constexpr std::array rooms{
    Room{"toolkit/core", 0},  Room{"toolkit/report", 1},
    Room{"toolkit/forms", 1}, Room{"data", 1},
    Room{"app", 2},           Room{"people", 3},
    Room{"catalogues", 4},    Room{"admissions", 4},
    Room{"clinical", 5},      Room{"payments", 6},
    Room{"cashdesk", 7},      Room{"shell", 8},
    Room{"main.cpp", 9},
};

std::optional<Room> roomOf(const QString &path) {
    for (const Room &room : rooms) {
        const QString folder = QString::fromLatin1(room.folder);
        if (path == folder || path.startsWith(folder + QLatin1Char('/')))
            return room;
    }
    return std::nullopt;
}

/// A source taken apart: without comments, and its string literals, neighbours joined, a line each.
struct Source {
    QString code;
    QString literals;
};

Source takeApart(const QString &text) {
    static const QRegularExpression token(
        QStringLiteral(R"re((?<comment>//[^\n]*|/\*.*?\*/))re"
                       R"re(|(?<raw>R"(?<tag>\w*)\((?<rawtext>.*?)\)\k<tag>"))re"
                       R"re(|"(?<text>(?:[^"\\\n]|\\.)*)")re"
                       R"re(|(?<![0-9A-Fa-f])'(?:[^'\\\n]|\\.)+'|\s+|.)re"),
        QRegularExpression::DotMatchesEverythingOption);
    Source source;
    bool joins = false;
    for (auto found = token.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        if (match.hasCaptured(QStringLiteral("comment"))) {
            source.code += QLatin1Char('\n');
            continue;
        }
        const bool raw = match.hasCaptured(QStringLiteral("raw"));
        if (raw || match.hasCaptured(QStringLiteral("text"))) {
            if (!joins)
                source.literals += QLatin1Char('\n');
            QString literal =
                match.captured(raw ? QStringLiteral("rawtext") : QStringLiteral("text"));
            source.literals += literal.replace(QLatin1Char('\n'), QLatin1Char(' '));
            joins = true;
        } else if (!match.captured().trimmed().isEmpty()) {
            joins = false;
        }
        source.code += match.captured();
    }
    return source;
}

/// Whether <header> belongs to a Qt module that draws nothing. What isn't Qt's passes.
bool needsNoScreen(const QString &header) {
    static const QRegularExpression other(
        QStringLiteral("^Qt(?!Core/|Sql/)\\w+/|^(qt)?(widgets|gui)\\b"));
    if (other.match(header).hasMatch())
        return false;
    if (!header.startsWith(QLatin1Char('Q'), Qt::CaseInsensitive) ||
        header.contains(QLatin1Char('/')))
        return true;
    const QDir headers(QLibraryInfo::path(QLibraryInfo::HeadersPath));
    return headers.exists(QStringLiteral("QtCore/") + header) ||
           headers.exists(QStringLiteral("QtSql/") + header);
}

QString includeFault(const Room &room, const QString &header, const QDir &src) {
    const std::optional<Room> other = roomOf(header);
    if (header.endsWith(QLatin1String(".moc")))
        return {};
    if (!other)
        return QStringLiteral("is no path from src/");
    if (!src.exists(header))
        return QStringLiteral("does not exist");
    if (QLatin1String(other->folder) == QLatin1String(room.folder) || other->level < room.level)
        return {};
    return other->level == room.level ? QStringLiteral("is sideways")
                                      : QStringLiteral("is upwards");
}

/// What the source at `path`, counted from src/, does against the law; one line for each fault.
QStringList faultsOf(const QString &path, const QString &text, const QDir &src) {
    static const QRegularExpression include(
        QStringLiteral(R"re(^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)[">])re"),
        QRegularExpression::MultilineOption);
    static const QRegularExpression sql(
        QStringLiteral(R"re(\bselect\b.+\bfrom\b|\binsert\s+into\b|\bupdate\s+\w+\s+set\b)re"
                       R"re(|\bdelete\s+from\b|\bexecute\s+procedure\b|\border\s+by\b)re"
                       R"re(|\bwhere\s+[\w.]+\s*(=|<|>|like\b))re"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression database(QStringLiteral("\\bQSql\\w+|\\bibase\\.h\\b"));
    static const QRegularExpression domain(
        QStringLiteral("\\b(FRM\\w+|DM[A-Z][a-z]\\w+|KD[A-Z]{3}\\w+)"));
    static const QRegularExpression bareConnect(QStringLiteral("\\bconnect\\s*\\("));

    const std::optional<Room> room = roomOf(path);
    if (!room)
        return {path + QStringLiteral(": the folder is no room of the house")};
    const Source source = takeApart(text);
    const bool toolkit = path.startsWith(QLatin1String("toolkit/"));
    const bool data = path.startsWith(QLatin1String("data/"));
    QStringList faults;
    for (auto found = include.globalMatch(source.code); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const QString header = match.captured(2);
        QString fault;
        if (match.captured(1) == QLatin1String("\""))
            fault = includeFault(*room, header, src);
        else if ((data || room->level == 0) && !needsNoScreen(header))
            fault = QStringLiteral("needs a screen");
        if (!fault.isEmpty())
            faults << QStringLiteral("%1: #include %2 %3").arg(path, header, fault);
    }
    const auto forbid = [&](const QRegularExpression &pattern, const QString &where,
                            const QString &what) {
        if (const auto match = pattern.match(where); match.hasMatch())
            faults << QStringLiteral("%1: %2: %3").arg(path, what, match.captured().left(60));
    };
    if (!data) {
        forbid(sql, source.literals, QStringLiteral("SQL belongs in data"));
        forbid(database, source.code, QStringLiteral("the database belongs in data"));
    }
    constexpr int screens = 2;
    if (room->level >= screens)
        forbid(bareConnect, source.code, QStringLiteral("handlers stand in guards"));
    if (toolkit)
        forbid(domain, text, QStringLiteral("the toolkit knows no screen, module or routine"));
    return faults;
}

QDir sourceFolder() {
    return QDir(QStringLiteral(KALDO_SOURCE_DIR "/src"));
}

}  // namespace

TEST(IncludeLaw, HoldsInEveryFile) {
    const QDir src = sourceFolder();
    QDirIterator files(src.path(), {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    QStringList faults;
    int read = 0;
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        faults +=
            faultsOf(src.relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll()), src);
        ++read;
    }
    faults.sort();
    EXPECT_GT(read, 10) << "no sources in " << src.path().toStdString();
    EXPECT_TRUE(faults.isEmpty()) << faults.join(QLatin1Char('\n')).toStdString();
}

TEST(IncludeLaw, CatchesEachKindOfFault) {
    struct Case {
        const char *path;
        const char *text;
        const char *fault;  // part of the only complaint; empty: lawful
    };
    const Case cases[] = {
        {"people/a.cpp", "#include \"toolkit/core/money.h\"\n#include <QWidget>\n", ""},
        {"people/a.cpp", "#include \"src/toolkit/core/money.h\"\n", "no path from src/"},
        {"people/a.cpp", "#include \"toolkit/core/no_such.h\"\n", "does not exist"},
        {"toolkit/core/a.h", "  #  include \"data/parameters.h\"\n", "upwards"},
        {"toolkit/forms/a.h", "#include \"data/parameters.h\"\n", "sideways"},
        {"toolkit/forms/a.h", "// #include \"data/parameters.h\"\n", ""},
        {"data/a.h", "#include <QSqlQuery>\n#include <QtCore/QString>\n#include <ibase.h>\n", ""},
        {"data/a.h", "#include <QWidget>\n", "needs a screen"},
        {"data/a.h", "#include <QtGui/QColor>\n", "needs a screen"},
        {"data/a.h", "const char *text = \"select nombre from expedientes\";", ""},
        {"toolkit/forms/a.cpp", "auto t = \"select nombre \"\n    \"from x\";", "SQL"},
        {"cashdesk/a.cpp", "auto t = R\"(\n  Delete\n  from recibos)\";", "SQL"},
        {"cashdesk/a.cpp", "auto a = \"select\"; auto b = \"from\"; /* select x from y */", ""},
        {"shell/a.cpp", "QSqlQuery query;", "database"},
        {"shell/a.cpp", "QChar quote(u'\"'); int n = 1'000; auto t = \"update x set y = 1\";",
         "SQL"},
        {"people/a.cpp", "connectGuarded(a, &A::b, this, c);", ""},
        {"people/a.cpp", "QObject::connect(a, &A::b, this, c);", "guards"},
        {"toolkit/report/a.h", "// as FRM401 prints it\n", "toolkit knows"},
        {"warehouse/a.h", "", "no room"},
    };
    for (const Case &one : cases) {
        const QStringList faults =
            faultsOf(QString::fromLatin1(one.path), QString::fromLatin1(one.text), sourceFolder());
        const std::string told = faults.join(QLatin1Char('\n')).toStdString();
        EXPECT_EQ(faults.size(), *one.fault ? 1 : 0) << one.path << '\n' << one.text << told;
        EXPECT_NE(told.find(one.fault), std::string::npos) << one.text << told;
    }
}
