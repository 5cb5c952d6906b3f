#include "yearops/Subdirector.h"

#include <array>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "records/CititorCampuri.h"
#include "sheets/FisiereSet.h"

namespace fisc {

namespace {

// Working file and the name it has in a subdirectory, in the order of the
// copies.
struct Pereche {
  std::string_view lucru;
  Familie familie;
};
constexpr std::array<Pereche, 4> kPerechi = {{
    {fisier::Ff1, Familie::FF1},
    {fisier::Ff2, Familie::FF2},
    {fisier::Deduceri, Familie::Ded},
    {fisier::Repfisc, Familie::Rep},
}};

// Runs a step whose run-time failure is passed over; false when it failed.
template <class Pas>
bool Incearca(Pas pas) {
  try {
    pas();
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

}  // namespace

bool CodPermis(std::string_view cod) {
  if (cod.empty() || cod.find("..") != std::string_view::npos) return false;
  for (char c : cod) {
    auto u = static_cast<unsigned char>(c);
    if (c == '/' || c == '\\' || c == ':' || u < 0x20 || u == 0x7f) return false;
  }
  return true;
}

std::string NumeSubdirector(std::string_view cod) {
  std::string nume(cod.size() <= 10 ? "J" : "F");
  nume += cod;
  return nume;
}

std::string CaleSubdirector(const Files& files, std::string_view cod) {
  std::string cale = files.Directory().string();
  cale += '/';
  cale += NumeSubdirector(cod);
  cale += '/';
  return cale;
}

RezultatRestaurare Restaureaza(Files& files, std::string_view cod, std::string_view an) {
  if (!CodPermis(cod)) return RezultatRestaurare::Refuzata;
  std::string nume = NumeSubdirector(cod);
  if (!files.IsDirectory(nume)) return RezultatRestaurare::FaraSubdirector;
  Files sub = files.Subdirectory(nume);
  for (const Pereche& p : kPerechi) {
    std::string salvat = NumeAnual(p.familie, an);
    // Each working file passes straight from its old content to the saved
    // one, or to empty when there is none or it can't be copied.
    bool copiat = sub.Exists(salvat) && Incearca([&] {
                    CopyFileAtomic(sub.Path(salvat), files.Path(p.lucru), files.Faults());
                  });
    if (!copiat) Incearca([&] { files.CreateEmpty(p.lucru); });
  }
  return RezultatRestaurare::Efectuata;
}

RezultatSalvare SalveazaInSubdirector(Files& files, std::string_view an) {
  RezultatSalvare r;
  std::string linie;
  Incearca([&] { linie = files.Read(fisier::Repfisc).Line(); });
  if (Trim(linie).empty()) return r;
  std::string_view cod = std::string_view(linie).substr(0, linie.find(','));
  if (!CodPermis(cod)) {
    r.stare = RezultatSalvare::Refuzata;
    return r;
  }
  r.cale = CaleSubdirector(files, cod);
  std::string nume = NumeSubdirector(cod);
  if (!files.IsDirectory(nume)) Incearca([&] { files.MakeDirectory(nume); });
  Files sub = files.Subdirectory(nume);
  for (const Pereche& p : kPerechi) Incearca([&] { sub.DeleteIfExists(NumeAnual(p.familie, an)); });
  for (const Pereche& p : kPerechi)
    Incearca([&] {
      CopyFileAtomic(files.Path(p.lucru), sub.Path(NumeAnual(p.familie, an)), files.Faults());
    });
  r.stare = RezultatSalvare::Efectuata;
  return r;
}

void GolesteFisiereLucru(Files& files) {
  for (std::string_view nume : {fisier::Repfisc, fisier::Ff1, fisier::Ff2, fisier::Deduceri})
    Incearca([&] { files.CreateEmpty(nume); });
}

}  // namespace fisc
