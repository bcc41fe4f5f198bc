#pragma once

// Transfers of whole files over HTTP(S) and FTP, for the archive update and for scripts.
//
// Every transfer is bounded: a time to connect, a time for the whole transfer, a largest size, and a
// callback that sees the bytes moved and may stop the transfer (the script's interruption, the
// desktop's cancel button). A download is written beside its destination under a temporary name and
// renamed over it only once complete and accepted (an HTTP status below 400), so the destination
// holds either its old content or the whole new file, never a part. Failures come back as one
// Italian sentence naming the address and the host, never libcurl's English text.

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include "archive/Esito.h"

namespace lottolab::rete {

enum class Prosegui { Si, No };

// Told the bytes moved so far and the total (0 while unknown), about once a second at least;
// Prosegui::No stops the transfer. Called on the thread that runs the transfer.
using AvanzamentoTrasferimento = std::function<Prosegui(uint64_t fatti, uint64_t totali)>;

struct OpzioniTrasferimento {
  std::chrono::seconds attesa_connessione{30};
  std::chrono::seconds tempo_massimo{120};  // the whole transfer; 0 for no limit
  uint64_t byte_massimi = uint64_t{256} << 20;
  // The schemes accepted, for the address and for every redirection, as libcurl lists them.
  std::string protocolli = "http,https,ftp,ftps";
  std::string utente;  // for FTP; empty for anonymous
  std::string password;
  AvanzamentoTrasferimento avanzamento;
};

// Downloads `indirizzo` into `destinazione`, creating its folder when missing, and returns the bytes
// written. On failure the message reads "Impossibile scaricare <indirizzo>: <reason>" and
// `destinazione` is as it was. Blocks: run it off a window's thread.
Esito<uint64_t> Scarica(const std::string& indirizzo, const std::filesystem::path& destinazione,
                        const OpzioniTrasferimento& opzioni = {});

// Sends the regular file `origine` to `indirizzo` (FTP creates the missing folders) and returns the
// bytes sent. On failure the message reads "Impossibile inviare <origine> a <indirizzo>: <reason>".
// Blocks.
Esito<uint64_t> Carica(const std::filesystem::path& origine, const std::string& indirizzo,
                       const OpzioniTrasferimento& opzioni = {});

}  // namespace lottolab::rete
