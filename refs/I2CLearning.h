#pragma once
// Turns an automatic I2C run on a board the technician calls good into the model's device list
// (table `i`): on every bus the run probed, the listed devices that answered stay, the silent
// ones go, and answering addresses that were not listed come in without a description. Buses
// the run did not probe keep their rows. The list is written with its origin in one transaction.

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class Database;

namespace I2CLearning {

// The addresses a bus scan reports ("0x37"), as "x37" the way an entry holds them, in the order
// they appear, each once.
QStringList addresses(const QString &answer);

struct Plan
{
    QString model;
    QStringList entries; // the new list, in the order it will be stored
    QStringList learned; // its entries on the probed buses: the ones the board vouched for
    QStringList added;
    QStringList removed;
    bool changes() const { return !added.isEmpty() || !removed.isEmpty(); }
};

// `answers`: the scan answer of every bus the run probed.
Plan plan(const QString &model, const QStringList &current, const QMap<int, QString> &answers);

// Writes the new list and its origins (learned from one board at `at` by `version`).
bool learn(Database &db, const Plan &plan, const QString &at, const QString &version, QString *error = nullptr);

} // namespace I2CLearning
