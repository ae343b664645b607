#pragma once

#include <QMap>
#include <QString>
#include <functional>

// What a user's hands do to the windows that are up, by the verb that begins a row of a transcript.
// Each takes the row's other words, and tells what only the doer notices; what can't be found fails
// the test.
using Tell = std::function<void(const QString& line)>;
using Hand = std::function<void(const QString& words, const Tell& tell)>;
const QMap<QString, Hand>& Hands();
