#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>

namespace kaldo {

/// A plain ini file: sections in square brackets, lines of key and value. Sections and keys are
/// compared without regard to case; backslashes, commas and quotes stand as they are, but for the
/// quotes around a whole value, which are none of it; a comment may stand behind a section's
/// bracket; lines that are neither (comments, blanks) survive a write untouched.
///
/// A file that is missing or can't be read is an empty one. A line that is no UTF-8 is taken as
/// Latin-1, UTF-16 is understood, a byte-order mark is passed over, and a binary file reads as far
/// as its lines make sense. A write goes straight to the file, in UTF-8 and with the line ends of
/// its first line, replacing it whole or not at all.
class IniFile {
public:
    explicit IniFile(QString path);

    const QString &path() const { return path_; }

    /// Takes what stands in the file now. One that is gone, empty or can't be read changes nothing,
    /// or the next write would leave nothing of it.
    void reread();

    QString value(const QString &section, const QString &key,
                  const QString &defaultValue = QString()) const;
    /// "S", exactly.
    bool isYes(const QString &section, const QString &key) const;
    /// Throws std::invalid_argument with a Spanish text when the value is no 32-bit integer; an
    /// absent key counts as an empty value.
    int integer(const QString &section, const QString &key) const;

    /// Writes through to the file, into what stands there now: what was edited by hand meanwhile
    /// stays, and counts from here on. Throws std::runtime_error with a Spanish text when the file
    /// can't be written; the value is then unchanged.
    void setValue(const QString &section, const QString &key, const QString &value);

    /// Runs a call whose setValue() go to the file together, in one write behind the last: all of
    /// them or, when the call or the write throws, none.
    void writeTogether(const std::function<void()> &call);

private:
    qsizetype sectionLine(const QString &section) const;
    void write(const QStringList &lines) const;
    void setLines(const QStringList &lines);

    QString path_;
    QStringList lines_;
    /// Where the line of a key stands, by section and key in lower case.
    QHash<QString, qsizetype> places_;
    bool together_ = false;
};

}  // namespace kaldo
