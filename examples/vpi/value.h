// The values of a simulation as the library takes them, and back.
#ifndef TARN_VPI_VALUE_H
#define TARN_VPI_VALUE_H

#include <string>
#include <vector>
#include <vpi_user.h>

#include <tarnlib.h>

namespace tarnvpi {

/** A vector in storage of its own. Where the functions below make one, its top word holds the
 *  extension that the library asks for: zeros, or copies of the top bit if it is read as signed. */
class Vector {
  public:
    explicit Vector(int width);

    int Width() const { return width_; }
    int WordCount() const { return static_cast<int>(words_.size()); }
    VectorWord* Words() { return words_.data(); }
    const VectorWord* Words() const { return words_.data(); }

    /** The library leaves the bits above the width of most results as they come; this makes such a
     *  result an operand. */
    void RestoreTopWord(bool isSigned);

    /** This value at another width. */
    Vector Widened(int width, bool isSigned) const;

  private:
    int width_;
    std::vector<VectorWord> words_;
};

// What follows throws std::invalid_argument where an argument has no such value or takes none.

int WidthOf(vpiHandle object);
bool IsSigned(vpiHandle object);

/** `isSigned` says how the expression reads the object, not how it is declared: Verilog reads a
 *  signed variable as unsigned where another operand is unsigned. */
Vector ReadVector(vpiHandle object, bool isSigned);
inline Vector ReadVector(vpiHandle object) {
    return ReadVector(object, IsSigned(object));
}
int ReadInteger(vpiHandle object);
double ReadReal(vpiHandle object);
std::string ReadText(vpiHandle object);

/** Assignments to a variable. A value as wide as the variable or wider is cut to its width. */
void WriteVector(vpiHandle variable, const Vector& value);
void WriteCode(vpiHandle variable, LogicCode code);
void WriteReal(vpiHandle variable, double value);
void WriteText(vpiHandle variable, const std::string& text);

}  // namespace tarnvpi

#endif
