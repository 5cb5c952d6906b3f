#pragma once
// The two sheet screens as the employee screen drives them. They compute the
// tax and so stand above this folder; the employee screen knows them only
// through these faces, which they implement.
#include <cstddef>
#include <string_view>

namespace fisc {

class EcranFF1 {
 public:
  virtual ~EcranFF1() = default;
  // The body of an FF1 record, from `pozitie` on, into the screen's fields.
  virtual void IncarcaFF1(std::string_view record, std::size_t pozitie) = 0;
  // The dependant in hand, and the count of dependants, on the screen.
  virtual void ArataPersoana() = 0;
  virtual void ArataNrPersoane() = 0;
  virtual void ArataPersoanaCurenta(short persoana) = 0;
  // The invalidity marks of the employee screen, set as a click sets them.
  virtual void PreiaInvaliditatea(int inv1, int inv2) = 0;
  virtual void Deschide(std::string_view nume, std::string_view prenume) = 0;
};

class EcranFF2 {
 public:
  virtual ~EcranFF2() = default;
  virtual void IncarcaFF2(std::string_view record, std::size_t pozitie) = 0;
  virtual void GolesteFF2() = 0;
  // Shows the screen under its caption.
  virtual void Deschide(std::string_view caption) = 0;
};

}  // namespace fisc
