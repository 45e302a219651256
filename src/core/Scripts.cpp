#include "core/Scripts.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString Script(const QString &name) {
    QFile file(u":/sql/"_s + name);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("The script %s is not built in.", qUtf8Printable(name));
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace

QString CashBookDDL() {
    return Script(u"CashBookDDL.sql"_s);
}

QString ReferenceDataSQL() {
    return Script(u"ReferenceData.sql"_s);
}

QString ChartSKR03SQL() {
    return Script(u"ChartSKR03.sql"_s);
}

QString ChartSKR04SQL() {
    return Script(u"ChartSKR04.sql"_s);
}

QString SampleDataSQL(int year) {
    return Script(u"SampleData.sql"_s).replace(u"{year}"_s, QString::number(year));
}
