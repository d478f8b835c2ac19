#include <QDateTime>
#include <QLocale>

#include "screens/platform/QtPorts.h"

namespace norlaplan {

std::string LocalClock::date() {
    return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

std::string LocalClock::time() {
    return QLocale::system().toString(QTime::currentTime(), QLocale::ShortFormat).toStdString();
}

std::string LocalClock::longDate() {
    return QLocale::system().toString(QDate::currentDate(), QLocale::LongFormat).toStdString();
}

}  // namespace norlaplan
