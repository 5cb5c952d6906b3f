#pragma once
// Sending a listing file to the printer, line by line, with a page break
// every so many lines; and the route every listing takes once its file is
// written: the viewer on the file, and the print dialog beside it.
#include <string_view>

namespace fisc {

class Files;
class Launcher;
class Printer;

// The constants by which the three print routines differ.
struct FormatPagina {
  std::string_view Font;
  double Marime;    // points
  int Stanga, Sus;  // twips from the page's corner
  int LiniiPagina;  // lines a page
};

inline constexpr FormatPagina PaginaFise{"Courier New", 9, 1000, 1000, 65};
inline constexpr FormatPagina PaginaBorderou{"Courier New", 7, 800, 800, 76};
inline constexpr FormatPagina PaginaTabel{"Courier New", 7, 150, 800, 76};

// How far down one printed line moves the position, in twips: the line of
// the font itself (Courier New stands 2320/2048 of its size high), then the
// size and a half more, which the routine adds after each line.
double PasRand(double marime);

// Shows the print dialog and prints the file on `format`'s grid. A cancel,
// or any failure from the dialog on, leaves at once without a message.
// liniePagina is the shared line counter: it counts the lines of the page.
void Listeaza(const Files& files, Printer& printer, short& liniePagina, std::string_view fisier,
              const FormatPagina& format);

// FF1, FF2, the monthly centraliser and the sheet previews.
void ListeazaFise(const Files& files, Printer& printer, short& liniePagina,
                  std::string_view fisier);
// The borderou.
void ListeazaBorderou(const Files& files, Printer& printer, short& liniePagina,
                      std::string_view fisier);
// The table of regularised FF1.
void ListeazaTabel(const Files& files, Printer& printer, short& liniePagina,
                   std::string_view fisier);

// The route after a listing file is closed: the viewer ("notepad") on the
// file, not waited for, then the print routine at once, so the viewer and
// the print dialog stand side by side.
using RutinaTiparire = void (*)(const Files&, Printer&, short&, std::string_view);
void ArataSiListeaza(Launcher& launcher, const Files& files, Printer& printer, short& liniePagina,
                     std::string_view fisier, RutinaTiparire listeaza);

}  // namespace fisc
