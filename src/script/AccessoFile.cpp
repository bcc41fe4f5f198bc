#include "AccessoFile.h"

#include <algorithm>
#include <fmt/format.h>

#include "text/Utf.h"

namespace lottolab::script {

namespace fs = std::filesystem;

namespace {

// As many links as the kernel follows before it gives up with ELOOP.
constexpr int kMassimoCollegamenti = 40;

std::string SenzaBarraFinale(const fs::path& percorso) {
  std::string testo = percorso.string();
  while (testo.size() > 1 && testo.back() == '/') testo.pop_back();
  return testo;
}

// `percorso` is `cartella` or lies inside it.
bool Dentro(const fs::path& percorso, const fs::path& cartella) {
  const std::string p = SenzaBarraFinale(percorso);
  const std::string c = SenzaBarraFinale(cartella);
  if (c.empty()) return false;
  return p == c || p.starts_with(c == "/" ? c : c + "/");
}

bool StrettamenteDentro(const fs::path& percorso, const fs::path& cartella) {
  return Dentro(percorso, cartella) && SenzaBarraFinale(percorso) != SenzaBarraFinale(cartella);
}

fs::path RisoltoOCosi(const fs::path& percorso) {
  auto risolto = PercorsoRisolto(percorso);
  return risolto ? *risolto : fs::absolute(percorso).lexically_normal();
}

std::vector<fs::path> Risolti(const std::vector<fs::path>& percorsi) {
  std::vector<fs::path> risolti;
  for (const fs::path& percorso : percorsi) {
    if (percorso.empty()) continue;
    fs::path risolto = RisoltoOCosi(percorso);
    if (std::find(risolti.begin(), risolti.end(), risolto) == risolti.end()) risolti.push_back(std::move(risolto));
  }
  return risolti;
}

std::string Elenco(const std::vector<fs::path>& cartelle) {
  std::string elenco;
  for (const fs::path& cartella : cartelle) elenco += (elenco.empty() ? "" : ", ") + cartella.string();
  return elenco;
}

vbs::ScriptError Rifiuto(std::string_view funzione, std::string_view azione, const fs::path& percorso,
                         std::string_view motivo) {
  return vbs::MakeError(vbs::err::kPermissionDenied,
                        text::Utf8ToUtf16(fmt::format("Permesso negato: {} non può {} {} ({})", funzione, azione,
                                                      percorso.string(), motivo)));
}

}  // namespace

std::optional<fs::path> PercorsoRisolto(const fs::path& percorso) {
  std::error_code ec;
  fs::path corrente = fs::absolute(percorso, ec);
  if (ec) return std::nullopt;
  for (int salti = 0; salti <= kMassimoCollegamenti; ++salti) {
    const fs::path risolto = fs::weakly_canonical(corrente, ec);
    if (ec) return std::nullopt;
    // What weakly_canonical leaves unresolved is the part that does not exist; a link pointing
    // nowhere is part of it, and writing through it would create its target: it is followed here.
    fs::path prefisso;
    bool seguito = false;
    for (auto parte = risolto.begin(); parte != risolto.end() && !seguito; ++parte) {
      prefisso /= *parte;
      std::error_code tipo;
      if (!fs::is_symlink(fs::symlink_status(prefisso, tipo))) continue;
      const fs::path bersaglio = fs::read_symlink(prefisso, ec);
      if (ec) return std::nullopt;
      corrente = bersaglio.is_absolute() ? bersaglio : prefisso.parent_path() / bersaglio;
      for (auto resto = std::next(parte); resto != risolto.end(); ++resto) {
        if (!resto->empty()) corrente /= *resto;
      }
      seguito = true;
    }
    if (!seguito) return risolto;
  }
  return std::nullopt;
}

AccessoFile::AccessoFile(RegoleAccesso regole)
    : m_modalita(regole.modalita),
      m_base(regole.cartella_base.empty() ? fs::path() : RisoltoOCosi(regole.cartella_base)),
      m_scrivibili(Risolti(regole.cartelle_scrivibili)),
      m_sola_lettura(Risolti(regole.sola_lettura)) {}

vbs::Status AccessoFile::Check(vbs::FileAccess accesso, const fs::path& percorso, std::string_view funzione) const {
  const bool protetta = m_modalita == Modalita::Protetta;
  if (accesso == vbs::FileAccess::Launch) {
    if (protetta)
      return Rifiuto(funzione, "aprire", percorso, "in modalità protetta nessun file si apre con altri programmi");
    return vbs::Ok();
  }
  const auto risolto = PercorsoRisolto(percorso);
  if (!risolto) return Rifiuto(funzione, "usare", percorso, "il percorso gira in un ciclo di collegamenti");
  if (accesso == vbs::FileAccess::Read) {
    if (protetta && !Dentro(*risolto, m_base))
      return Rifiuto(funzione, "leggere", percorso,
                     fmt::format("in modalità protetta si legge solo nella cartella {}", m_base.string()));
    return vbs::Ok();
  }
  const std::string_view azione = accesso == vbs::FileAccess::Write ? "scrivere" : "eliminare";
  // Writing into a folder that holds the archive could replace it as surely as writing the file.
  const bool tocca = std::any_of(m_sola_lettura.begin(), m_sola_lettura.end(),
                                 [&](const fs::path& protetto) { return Dentro(protetto, *risolto); });
  if (tocca)
    return Rifiuto(funzione, azione, percorso, "lottolab.ini e gli archivi sono in sola lettura per gli script");
  if (!protetta) return vbs::Ok();
  const bool permesso = std::any_of(m_scrivibili.begin(), m_scrivibili.end(), [&](const fs::path& cartella) {
    return accesso == vbs::FileAccess::Write ? Dentro(*risolto, cartella) : StrettamenteDentro(*risolto, cartella);
  });
  if (!permesso)
    return Rifiuto(funzione, azione, percorso,
                   fmt::format("in modalità protetta si scrive e si elimina solo in {}", Elenco(m_scrivibili)));
  return vbs::Ok();
}

}  // namespace lottolab::script
