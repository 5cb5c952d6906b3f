#include "yearops/UnireDischete.h"

#include <array>
#include <filesystem>
#include <string>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "platform/Services.h"
#include "sheets/FisiereSet.h"

namespace fisc {

namespace fs = std::filesystem;

namespace {

// The current diskette's sheets, and the working files in the making.
struct Lot {
  Familie familie;
  std::string_view dischetaPrin;  // the _r file the diskette's file is copied over
  std::string_view inLucru;       // the working file as it grows
};
constexpr std::array<Lot, 4> kLoturi = {{
    {Familie::Rep, "", "Repfisc_u.txt"},
    {Familie::FF1, "Ff1_r.txt", "Ff1_u.txt"},
    {Familie::FF2, "Ff2_r.txt", "Ff2_u.txt"},
    {Familie::Ded, "Ded_r.txt", "Ded_u.txt"},
}};

// Runs one statement; after failure 71 or 75 its box shows and it runs again,
// so the person can put the diskette in or change it.
template <class Pas>
void Reincearca(Dialogs& dialogs, Pas pas) {
  for (;;) {
    try {
      pas();
      return;
    } catch (const RuntimeFailure& f) {
      if (f.number() == err::DiskNotReady)
        Warn(dialogs, "Eroare 71. Nu ati introdus discheta in unitate .");
      else if (f.number() == err::PathFileAccess)
        Warn(dialogs, "Eroare 75. Fisier defect. Refaceti discheta si reluati faza de unire. ");
      else
        throw;
    }
  }
}

// The drive as a folder: missing, it has no diskette; a file in its place
// can't be read.
Files Discheta(const Drive& drive) {
  std::error_code ec;
  fs::file_status st = fs::status(drive.Root(), ec);
  if (!fs::exists(st)) Fail(err::DiskNotReady);
  if (!fs::is_directory(st)) Fail(err::PathFileAccess);
  return Files(drive.Root());
}

// Appends the lines of `sursa` to `tinta`, counting them.
void AdaugaLinii(Files& files, Dialogs& dialogs, std::string_view sursa, std::string_view tinta,
                 short* contor) {
  LineReader in = files.Read(sursa);
  LineWriter out = files.Append(tinta);
  std::string linie;
  while (in.Next(linie)) {
    Reincearca(dialogs, [&] { out.Line(linie); });
    if (contor) *contor = AdaugaLinie(*contor);
  }
  out.Close();
}

void PuneInLoc(Files& files) {
  for (const Lot& lot : kLoturi) files.Replace(lot.inLucru, NumeLucru(lot.familie));
}

}  // namespace

short AdaugaLinie(short contor) { return CheckedShort(long{contor} + 1); }

std::optional<RezultatUnire> UnesteDischete(Files& files, const Drive& drive, Dialogs& dialogs,
                                            Clock& clock, std::string_view anFiscal) {
  RezultatUnire r;
  short prompt = 1;
  bool inceput = false;
  try {
    for (const Lot& lot : kLoturi) {
      Reincearca(dialogs, [&] { files.CreateEmpty(lot.inLucru); });
      if (!lot.dischetaPrin.empty())
        Reincearca(dialogs, [&] { files.CreateEmpty(lot.dischetaPrin); });
    }
    inceput = true;
    for (;;) {
      std::string_view intrebare = prompt == 1
                                       ? "Introduceti prima discheta. Ati introdus discheta ?"
                                       : "Introduceti discheta urmatoare. Ati introdus discheta ?";
      if (!AskYesNo(dialogs, intrebare, "  ")) {
        if (!AskYesNo(dialogs, "Mai aveti dischete de introdus ?", " ")) break;
        continue;
      }
      r.NrDischete = CheckedShort(long{r.NrDischete} + 1);
      prompt = CheckedShort(long{prompt} + 1);
      // The employer record of the last diskette wins.
      for (const Lot& lot : kLoturi) {
        std::string nume = NumeAnual(lot.familie, anFiscal);
        std::string_view tinta = lot.dischetaPrin.empty() ? lot.inLucru : lot.dischetaPrin;
        Reincearca(dialogs, [&] {
          Files discheta = Discheta(drive);
          if (discheta.Exists(nume))
            CopyFileAtomic(discheta.Path(nume), files.Path(tinta), files.Faults());
        });
      }
      AdaugaLinii(files, dialogs, "Ff1_r.txt", "Ff1_u.txt", &r.FF1);
      Reincearca(dialogs, [&] { files.CreateEmpty("Ff1_r.txt"); });
      AdaugaLinii(files, dialogs, "Ff2_r.txt", "Ff2_u.txt", &r.FF2);
      Reincearca(dialogs, [&] { files.CreateEmpty("Ff2_r.txt"); });
      AdaugaLinii(files, dialogs, "Ded_r.txt", "Ded_u.txt", nullptr);
      Reincearca(dialogs, [&] { files.CreateEmpty("Ded_r.txt"); });
      clock.Wait(std::chrono::seconds(3));
    }
    // A failure here too ends the merge with what was added in place.
    PuneInLoc(files);
    for (const Lot& lot : kLoturi)
      if (!lot.dischetaPrin.empty()) files.DeleteIfExists(lot.dischetaPrin);
  } catch (const RuntimeFailure&) {
    // What was added so far stays, as the working files had it when the
    // merge stopped.
    if (inceput) {
      try {
        PuneInLoc(files);
      } catch (const RuntimeFailure&) {
      }
    }
    return std::nullopt;
  }
  return r;
}

}  // namespace fisc
