#pragma once

#include "platform/WeekRule.h"

#include <QCommandLineOption>
#include <QDateTime>
#include <QList>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QCommandLineParser)

namespace ridelog {

/// The words that choose the day whose year, month or week is meant, and where weeks start.
class PeriodOptions {
public:
    /// --date and --week-start.
    static QList<QCommandLineOption> options();
    static bool areSet(const QCommandLineParser& options);
    /// Reads them; without a word the day is that of `now`, and the rule that of the locale.
    PeriodOptions(const QCommandLineParser& options, const QDateTime& now);

    /// What is wrong with the words; empty if nothing is.
    const QString& fault() const { return _fault; }
    /// Only its day counts.
    const QDateTime& date() const { return _date; }
    WeekRule weekRule() const { return _weekRule; }

    /// How days are written: "2007-03-15".
    static QString text(QDate day);

private:
    QDateTime _date;
    WeekRule _weekRule;
    QString _fault;
};

} // namespace ridelog
