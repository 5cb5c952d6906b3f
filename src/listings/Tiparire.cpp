#include "listings/Tiparire.h"

#include <cmath>
#include <string>

#include "listings/Cadru.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "platform/Printer.h"
#include "platform/Services.h"

namespace fisc {

double PasRand(double marime) {
  // The height of a Courier New line at `marime` points, as the printer
  // reports it: (ascent + descent) of 2048 units to the em, 20 twips a point.
  constexpr double kInaltimeCourier = 2320.0 / 2048.0;
  return std::round(marime * 20.0 * kInaltimeCourier) + marime * 1.5;
}

void Listeaza(const Files& files, Printer& printer, short& liniePagina, std::string_view fisier,
              const FormatPagina& format) {
  try {
    if (!printer.Begin(fisier, format.Font, format.Marime)) return;
    LineReader in = files.Read(fisier);
    double y = format.Sus;
    printer.SetPosition(format.Stanga, format.Sus);
    liniePagina = 0;
    std::string linie;
    while (in.Next(linie)) {
      NumaraLinie(liniePagina);
      if (liniePagina > format.LiniiPagina) {
        liniePagina = 1;
        printer.NewPage();
        y = format.Sus;
        printer.SetPosition(format.Stanga, format.Sus);
      }
      printer.PrintLine(linie);
      y += PasRand(format.Marime);
      printer.SetPosition(format.Stanga, static_cast<int>(std::lround(y)));
    }
    printer.End();
  } catch (const RuntimeFailure&) {
    // The routine's only guard: whatever fails, nothing is said.
  }
}

void ListeazaFise(const Files& files, Printer& printer, short& liniePagina,
                  std::string_view fisier) {
  Listeaza(files, printer, liniePagina, fisier, PaginaFise);
}

void ListeazaBorderou(const Files& files, Printer& printer, short& liniePagina,
                      std::string_view fisier) {
  Listeaza(files, printer, liniePagina, fisier, PaginaBorderou);
}

void ListeazaTabel(const Files& files, Printer& printer, short& liniePagina,
                   std::string_view fisier) {
  Listeaza(files, printer, liniePagina, fisier, PaginaTabel);
}

void ArataSiListeaza(Launcher& launcher, const Files& files, Printer& printer, short& liniePagina,
                     std::string_view fisier, RutinaTiparire listeaza) {
  launcher.Start("notepad", fisier);
  listeaza(files, printer, liniePagina, fisier);
}

}  // namespace fisc
