// Texts run one after the other, with what the user is told about them.
#ifndef TARNCALC_SESSION_H
#define TARNCALC_SESSION_H

#include <string>
#include <string_view>

#include "interpreter.h"
#include "radix.h"
#include "source.h"

namespace tarncalc {

enum class Outcome { kOk, kInputOutputError, kWrongInput };

/** Variables live as long as their session. Results go to the standard output, messages to the
 *  standard error output. */
class Session {
  public:
    explicit Session(const Radix& radix);

    Outcome RunArgument(std::string_view text);
    Outcome RunFile(const std::string& path);

    /** On a terminal with a prompt. */
    Outcome RunStandardInput();

  private:
    Outcome Run(Source& source, const std::string& name);
    void Report(const Source& source, const std::string& name, Place place,
                std::string_view message);

    Interpreter interpreter_;
};

}  // namespace tarncalc

#endif
