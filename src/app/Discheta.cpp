#include "app/Discheta.h"

#include <filesystem>
#include <string>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "sheets/FisiereSet.h"

namespace fisc {

namespace fs = std::filesystem;

namespace {

void CopiazaPeDischeta(Platforma& p, std::string_view an) {
  std::error_code ec;
  if (!fs::is_directory(p.drive.Root(), ec)) Fail(EroareDischeta(p.drive, err::PathNotFound));
  Files discheta(p.drive.Root());
  discheta.SetFaultPlan(p.files.Faults());
  for (const std::string& nume : discheta.List()) discheta.Delete(nume);
  for (Familie f : {Familie::FF1, Familie::FF2, Familie::Ded, Familie::Rep}) {
    std::string tinta = NumeAnual(f, an);
    // A year that can't stand in a file name is a name the drive refuses.
    if (tinta.find_first_of(std::string_view("/\0", 2)) != std::string::npos)
      Fail(err::BadFileName);
    CopyFileAtomic(p.files.Path(NumeLucru(f)), discheta.Path(tinta), p.files.Faults());
  }
}

std::string_view TextEroare(int numar) {
  switch (numar) {
    case err::BadFileName: return ". Discheta defecta.";
    case err::DiskFull: return ". Discheta plina. ";
    case err::DiskNotReady: return ". Nu ati introdus discheta in unitate .";
    default: return {};
  }
}

}  // namespace

int EroareDischeta(const Drive& drive, int numar) {
  std::error_code ec;
  fs::file_status st = fs::status(drive.Root(), ec);
  if (!fs::exists(st)) return err::DiskNotReady;
  if (!fs::is_directory(st)) return err::BadFileName;
  return numar;
}

void SalveazaPeDischeta(Platforma& p, std::string_view anFiscal) {
  bool da = AskYesNo(p.dialogs, "Ati introdus discheta  ?", "  ");
  p.dialogs.Busy(true);
  if (da) {
    try {
      CopiazaPeDischeta(p, anFiscal);
      p.clock.Wait(std::chrono::seconds(5));
      p.dialogs.Box("Salvarea a fost efectuata.", Buttons::Ok, Icon::None, " ");
    } catch (const RuntimeFailure& f) {
      int numar = EroareDischeta(p.drive, f.number());
      std::string_view text = TextEroare(numar);
      // Any other failure ends the copy silently: no box at all tells the person it failed.
      if (!text.empty())
        Warn(p.dialogs, "Eroare " + std::to_string(numar) + std::string(text), "  ");
    }
  } else {
    p.clock.Wait(std::chrono::seconds(5));
    p.dialogs.Box("Salvarea nu a fost efectuata.", Buttons::Ok, Icon::None, " ");
  }
  p.dialogs.Busy(false);
}

}  // namespace fisc
