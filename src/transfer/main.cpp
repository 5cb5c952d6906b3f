// transfer: the converter between the per-year dBase files and the text
// working files. Its own window is a console; the program that starts it
// reads ferr.txt, never this output.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "transfer/Transfer.h"

namespace {

constexpr const char* kUtilizare =
    "Utilizare: transfer [DIRECTOR]             dbf -> txt (Rep, FF1, FF2, Ded)\n"
    "           transfer --to-dbf [DIRECTOR]    txt -> dbf\n"
    "           transfer --templates DIRECTOR   sabloanele goale Rep.dbf, FF1.dbf, FF2.dbf, "
    "Ded.dbf\n";

enum class Mod { InText, InDbf, Sabloane };

int Utilizare(const std::string& mesaj) {
  if (!mesaj.empty()) std::fprintf(stderr, "transfer: %s\n", mesaj.c_str());
  std::fputs(kUtilizare, stderr);
  return 2;
}

int Ruleaza(Mod mod, const std::filesystem::path& director) {
  fisc::Files files(director);
  if (mod == Mod::Sabloane) {
    fisc::ScrieSabloane(files);
    return 0;
  }
  std::optional<std::string> an = fisc::AnDinTr12(files);
  if (!an) {
    std::fprintf(stderr, "transfer: fisierul tr12.txt lipseste sau nu contine anul fiscal (%s).\n",
                 director.c_str());
    return 2;
  }
  if (mod == Mod::InText) {
    std::vector<std::string> erori = fisc::DbfInText(files, *an);
    if (!erori.empty()) {
      std::fprintf(stderr, "transfer: erori in structura fisierelor dbf, vezi ferr.txt.\n");
      return 1;
    }
    std::printf("Conversia dbf -> txt a fost efectuata.\n");
    return 0;
  }
  auto azi = std::chrono::year_month_day(
      std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()));
  std::vector<std::string> erori = fisc::TextInDbf(files, *an, azi);
  for (const std::string& eroare : erori) std::fprintf(stderr, "%s\n", eroare.c_str());
  if (!erori.empty()) return 1;
  std::printf("Conversia txt -> dbf a fost efectuata.\n");
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  Mod mod = Mod::InText;
  int primul = 1;
  if (argc > 1 && std::string_view(argv[1]) == "--to-dbf") {
    mod = Mod::InDbf;
    primul = 2;
  } else if (argc > 1 && std::string_view(argv[1]) == "--templates") {
    mod = Mod::Sabloane;
    primul = 2;
  }
  if (argc - primul > 1) return Utilizare("prea multe argumente.");
  if (argc - primul == 1 && std::string_view(argv[primul]).starts_with("-"))
    return Utilizare(std::string("optiune necunoscuta ") + argv[primul] + ".");
  if (mod == Mod::Sabloane && argc - primul == 0) return Utilizare("lipseste directorul.");
  std::filesystem::path director = argc - primul == 1 ? argv[primul] : ".";
  std::error_code ec;
  if (!std::filesystem::is_directory(director, ec))
    return Utilizare("directorul " + director.string() + " nu exista.");
  try {
    return Ruleaza(mod, director);
  } catch (const fisc::RuntimeFailure& f) {
    std::fprintf(stderr, "transfer: eroare %d: %s\n", f.number(), f.description().c_str());
    return 3;
  }
}
