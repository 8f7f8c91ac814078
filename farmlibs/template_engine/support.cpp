#include "support.h"

namespace TTemplateEngine {

const char kSupportSource[] = R"python(
import sys
import types


class Stream:
    """A standard stream that outlives its reader: what cannot be written is dropped."""

    def __init__(self, stream):
        self._stream = stream

    def __getattr__(self, name):
        return getattr(self._stream, name)

    def write(self, text):
        try:
            return self._stream.write(text)
        except OSError:
            return len(text)

    def flush(self):
        try:
            self._stream.flush()
        except OSError:
            pass


def guard_streams():
    for name in ("stdout", "stderr"):
        stream = getattr(sys, name)
        if stream is not None:
            setattr(sys, name, Stream(stream))


def load(name, path, folders):
    # Behind the standard library: a template called json.py must not replace it for all others.
    sys.path.extend(folder for folder in folders if folder not in sys.path)
    with open(path, "rb") as file:
        code = compile(file.read(), path, "exec", dont_inherit=True)
    module = types.ModuleType("tarrow_templates." + name)
    module.__file__ = path
    sys.modules[module.__name__] = module
    try:
        exec(code, module.__dict__)
        return (module, *identity(module))
    except BaseException:
        sys.modules.pop(module.__name__, None)
        raise


def identity(module):
    number = getattr(module, "TEMPLATE_ID", None)
    if number is not None and not (isinstance(number, int) and not isinstance(number, bool) and -2**31 <= number < 2**31):
        raise TypeError("TEMPLATE_ID must be a 32-bit integer")
    title = getattr(module, "TEMPLATE_NAME", None)
    if title is not None and not isinstance(title, str):
        raise TypeError("TEMPLATE_NAME must be a text")
    return number, title and title.encode()


def summary(error, path):
    import traceback

    text = " ".join(f"{type(error).__name__}: {error}".split())
    lines = [line for frame, line in traceback.walk_tb(error.__traceback__) if frame.f_code.co_filename == path]
    return f"{text}, at line {lines[-1]}" if lines else text


def report(error, path):
    import traceback

    return "".join(traceback.format_exception(error)).rstrip("\n")
)python";

} // namespace TTemplateEngine
