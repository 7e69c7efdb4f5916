#include "settings.h"

#include "model/property_table.h"
#include "values/text.h"
#include "worlds/qt/qt_text.h"

#include <QMetaEnum>
#include <tuple>

namespace lumtex::gallery {

namespace {

using namespace Qt::StringLiterals;

QByteArray fileKey(const QMetaProperty& setting) {
    return QByteArray(setting.name()) + "File";
}

const LumtexListView& newList() {
    static const LumtexListView list;
    return list;
}

bool same(const QVariant& left, const QVariant& right) {
    if (left.metaType() == QMetaType::fromType<QPixmap>())
        return left.value<QPixmap>().toImage() == right.value<QPixmap>().toImage();
    return left == right;
}

/// How one language writes settings.
class Writer {
  public:
    virtual ~Writer() = default;
    virtual QString flag(const QString& name, bool value) const = 0;
    virtual QString choice(const QString& name, const QMetaEnum& choices, int value) const = 0;
    virtual QString number(const QString& name, const QString& value) const = 0;
    virtual QString color(const QString& name, QColor value) const = 0;
    virtual QString font(const QString& name, const QFont& value) const = 0;
    virtual QString picture(const QString& name, const QString& file) const = 0;
    virtual QString comment(const QString& text) const = 0;

    QString write(const LumtexListView& list) const;

  private:
    QString line(const LumtexListView& list, const QMetaProperty& setting) const;
};

QString Writer::line(const LumtexListView& list, const QMetaProperty& setting) const {
    const QString name = QString::fromLatin1(setting.name());
    const QVariant value = setting.read(&list);
    if (setting.isEnumType())
        return choice(name, setting.enumerator(), value.toInt());
    switch (value.typeId()) {
    case QMetaType::Bool:
        return flag(name, value.toBool());
    case QMetaType::QColor:
        return color(name, value.value<QColor>());
    case QMetaType::QFont:
        return font(name, value.value<QFont>());
    case QMetaType::QPixmap: {
        const QString file = list.property(fileKey(setting).constData()).toString();
        return file.isEmpty() ? comment(name + " has a picture that is in no file"_L1) : picture(name, file);
    }
    default:
        return number(name, QString::number(value.toDouble()));
    }
}

QString Writer::write(const LumtexListView& list) const {
    QString code;
    for (const QMetaProperty& setting : changedSettings(list))
        code += line(list, setting) + u'\n';
    return code;
}

class Cpp final : public Writer {
  public:
    QString flag(const QString& name, bool value) const override {
        return set(name, value ? u"true"_s : u"false"_s);
    }
    QString choice(const QString& name, const QMetaEnum& choices, int value) const override {
        const char* key = choices.valueToKey(value);
        return set(name,
                   key != nullptr
                       ? "LumtexListView::"_L1 + QLatin1String(key)
                       : u"LumtexListView::%1(%2)"_s.arg(QLatin1String(choices.name())).arg(value));
    }
    QString number(const QString& name, const QString& value) const override { return set(name, value); }
    QString color(const QString& name, QColor value) const override {
        return set(name, u"QColor(0x%1)"_s.arg(value.rgb() & 0xFFFFFFU, 6, 16, QChar(u'0')));
    }
    QString font(const QString& name, const QFont& value) const override {
        QStringList styles;
        if (value.underline())
            styles.append(u"font.setUnderline(true);"_s);
        if (value.strikeOut())
            styles.append(u"font.setStrikeOut(true);"_s);
        return u"{\n    QFont font(%1);\n    font.setPointSizeF(%2);\n    "
               u"font.setWeight(QFont::Weight(%3));\n"
               "    font.setItalic(%4);\n    %5list.set%6(font);\n}"_s.arg(quoted(value.family()))
                   .arg(value.pointSizeF())
                   .arg(int{value.weight()})
                   .arg(value.italic() ? "true"_L1 : "false"_L1)
                   .arg(styles.isEmpty() ? QString() : styles.join(u"\n    ") + "\n    "_L1, name);
    }
    QString picture(const QString& name, const QString& file) const override {
        return set(name, u"QPixmap(%1)"_s.arg(quoted(file)));
    }
    QString comment(const QString& text) const override { return "// "_L1 + text; }

  private:
    static QString set(const QString& name, const QString& value) {
        return u"list.set%1(%2);"_s.arg(name, value);
    }
    static QString quoted(QString text) {
        text.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1);
        return u'"' + text + u'"';
    }
};

class VbScript final : public Writer {
  public:
    QString flag(const QString& name, bool value) const override {
        return let(name, value ? u"True"_s : u"False"_s);
    }
    QString choice(const QString& name, const QMetaEnum& choices, int value) const override {
        const char* key = choices.valueToKey(value);
        return let(name, QString::number(value)) +
               (key != nullptr ? " ' "_L1 + QLatin1String(key) : QString());
    }
    QString number(const QString& name, const QString& value) const override { return let(name, value); }
    QString color(const QString& name, QColor value) const override {
        return let(name, u"RGB(%1, %2, %3)"_s.arg(value.red()).arg(value.green()).arg(value.blue()));
    }
    QString font(const QString& name, const QFont& value) const override {
        const auto yesNo = [](bool yes) { return yes ? "True"_L1 : "False"_L1; };
        return u"Set font = CreateObject(\"StdFont\")\nfont.Name = %1\nfont.Size = %2\nfont.Bold = %3\n"
               "font.Italic = %4\nfont.Underline = %5\nfont.Strikethrough = %6\nSet list.%7 = font"_s
                   .arg(quoted(value.family()))
                   .arg(value.pointSizeF())
                   .arg(yesNo(value.bold()))
                   .arg(yesNo(value.italic()))
                   .arg(yesNo(value.underline()))
                   .arg(yesNo(value.strikeOut()))
                   .arg(name);
    }
    QString picture(const QString& name, const QString& file) const override {
        return u"Set list.%1 = LoadPicture(%2)"_s.arg(name, quoted(file));
    }
    QString comment(const QString& text) const override { return "' "_L1 + text; }

  private:
    static QString let(const QString& name, const QString& value) {
        return u"list.%1 = %2"_s.arg(name, value);
    }
    static QString quoted(QString text) { return u'"' + text.replace(u'"', "\"\""_L1) + u'"'; }
};

} // namespace

std::vector<QMetaProperty> allSettings() {
    std::vector<QMetaProperty> settings;
    const QMetaObject& meta = LumtexListView::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        if (property.isStored() && property.isResettable())
            settings.push_back(property);
    }
    return settings;
}

bool isNewValue(const LumtexListView& list, const QMetaProperty& setting) {
    return same(setting.read(&list), setting.read(&newList()));
}

std::vector<QMetaProperty> changedSettings(const LumtexListView& list) {
    std::vector<QMetaProperty> changed = allSettings();
    std::erase_if(changed, [&](const QMetaProperty& setting) { return isNewValue(list, setting); });
    return changed;
}

namespace {

/// Hands `use` the row of the table.
template <class Use>
void withRowOf(const QMetaProperty& setting, Use use) {
    const String name = fromUtf8(setting.name());
    const auto tryRow = [&](const auto& row) {
        if (row.name == name)
            use(row);
    };
    std::apply([&](const auto&... rows) { (tryRow(rows), ...); }, property_table::rows);
}

} // namespace

QString helpOf(const QMetaProperty& setting) {
    QString help;
    withRowOf(setting, [&](const auto& row) { help = qt::toQString(row.help.in(words::Language::english)); });
    return help;
}

Group groupOf(const QMetaProperty& setting) {
    Group group = Group::appearance;
    withRowOf(setting, [&](const auto& row) { group = row.group; });
    return group;
}

QString unitOf(const QMetaProperty& setting) {
    const QString help = helpOf(setting);
    if (help.contains("twips"_L1, Qt::CaseInsensitive))
        return u"twips"_s;
    if (help.contains("pixels"_L1, Qt::CaseInsensitive))
        return u"px"_s;
    return help.startsWith("Rows"_L1) ? u"rows"_s : QString();
}

void setPictureFile(LumtexListView& list, const QMetaProperty& setting, const QString& file) {
    list.setProperty(fileKey(setting).constData(), file);
}

QString settingsAsCpp(const LumtexListView& list) {
    return Cpp().write(list);
}

QString settingsAsVbScript(const LumtexListView& list) {
    return VbScript().write(list);
}

} // namespace lumtex::gallery
