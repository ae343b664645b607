#pragma once

#include <QString>
#include <QTextCharFormat>
#include <optional>
#include <string>
#include <string_view>

#include "platform/rich_text.h"

// Between program text and a QTextDocument. One byte is one character of the document and CR LF is
// one paragraph separator; a lone CR or LF stands as a private character, so every byte survives.

QString ToDocumentText(std::string_view bytes);

// A character that the code page lacks reads as "?", so that offsets stay true.
std::string FromDocumentText(QString text);

// A character that the code page lacks, and its row, counted from 1.
struct RefusedCharacter {
  QString character;
  int row = 1;
};
// The first one of a text; empty if there is none.
std::optional<RefusedCharacter> FindRefusedCharacter(const QString& text);

QTextCharFormat ToCharFormat(const TextFormat& format);
TextFormat FromCharFormat(const QTextCharFormat& format);
