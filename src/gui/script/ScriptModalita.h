#pragma once

// The mode a script runs in when the desktop opens it (AccessoFile.h says what each allows). A
// script from the user's own scripts folder runs in normal mode; one from anywhere else, such as a
// script shared on a forum and saved in Downloads, makes the window ask once, and the answer is
// remembered for that exact content: the SHA-256 of the file's bytes, so that a changed file asks
// again. The answers live in script_modalita.txt of the base folder, one line each, "HASH protetta"
// or "HASH normale", rewritten whole (a new file renamed over the old) at every answer.

#include <QByteArray>

#include <filesystem>
#include <optional>
#include <string>

#include "archive/Esito.h"
#include "script/AccessoFile.h"

namespace lottolab::gui {

inline constexpr std::string_view kFileModalita = "script_modalita.txt";

// Whether `file` lies in `cartella` or below, links followed.
bool NellaCartella(const std::filesystem::path& file, const std::filesystem::path& cartella);

// The SHA-256 of the bytes, in lower-case hexadecimal.
std::string ImprontaScript(const QByteArray& contenuto);

// The answer remembered for `impronta` in the base folder; nothing when none (or the file is unreadable).
std::optional<script::Modalita> ModalitaRicordata(const std::filesystem::path& base, const std::string& impronta);

// Remembers the answer, replacing an earlier one for the same content; the file is written whole or
// left as it was.
Esito<Fatto> RicordaModalita(const std::filesystem::path& base, const std::string& impronta, script::Modalita modalita);

}  // namespace lottolab::gui
