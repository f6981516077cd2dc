#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// The simulator serves one board at a time; this is the fixed list of boards and fault profiles
// it can play, shared by the command line, the board model and the tests so the names agree.

enum class Profile { Good, Silent, Chatty, Unplug, Garbage, RejectOnce, I2cMissing, LowRail, DeadRadio };

struct SimModel {
    QString name;    // as the desktop program's model list shows it, e.g. "IP 7"
    QString folder;  // answer folder, e.g. "ip7"
    QString regulatoryNumber;
};

namespace SimCatalog {
const QList<SimModel> &models();
std::optional<SimModel> modelByName(const QString &name);
QStringList profileNames();
std::optional<Profile> profileByName(const QString &name);
QString profileName(Profile profile);
}
