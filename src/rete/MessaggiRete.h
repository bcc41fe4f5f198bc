#pragma once

// The reasons a transfer fails, said in Italian for the user: libcurl's own texts are English and
// name no host, so each failure a user can meet has its sentence here, naming the host to look at.

#include <chrono>
#include <curl/curl.h>
#include <string>

namespace lottolab::rete {

// The host of `indirizzo` ("www.example.it", "127.0.0.1:2121"), or the address itself when it names
// none (a file:// address, a malformed one).
std::string HostDi(const std::string& indirizzo);

// Why libcurl's `codice` stopped a transfer with `host`, as the end of a sentence.
std::string MotivoCurl(CURLcode codice, const std::string& host, std::chrono::seconds tempo_massimo);

// An HTTP status of 400 or more: "www.example.it ha risposto 404 (file non trovato)".
std::string MotivoHttp(long stato, const std::string& host);

}  // namespace lottolab::rete
