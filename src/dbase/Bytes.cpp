#include "dbase/Bytes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "dbase/Error.h"
#include "files/PrivateFile.h"
#include "text/SystemErrors.h"

namespace fidaleon::dbase {

namespace {

std::string reason(int number) {
  switch (number) {
    case ENOENT:
    case ENOTDIR:
      return "no existe.";
    case EACCES:
    case EPERM:
      return "no hay permiso para leerlo.";
    case EIO:
      return "el disco o la memoria en que está falla.";
    default:
      return text::systemReason(std::error_code(number, std::generic_category()));
  }
}

class File : public Bytes {
 public:
  explicit File(const std::filesystem::path& file)
      : name_(file.filename().string()),
        // Whatever stands in the place of a file must not keep the program waiting.
        file_(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
    struct stat facts = {};
    if (file_.number() < 0 || ::fstat(file_.number(), &facts) != 0) fail(reason(errno));
    if (S_ISDIR(facts.st_mode)) fail("es una carpeta.");
    if (!S_ISREG(facts.st_mode)) fail("no es un archivo.");
    size_ = static_cast<std::uint64_t>(facts.st_size);
  }

  std::uint64_t size() const override { return size_; }

  void read(std::uint64_t offset, std::span<char> room) const override {
    while (!room.empty()) {
      const ssize_t got =
          ::pread(file_.number(), room.data(), room.size(), static_cast<off_t>(offset));
      if (got < 0 && errno == EINTR) continue;
      if (got < 0) fail(reason(errno));
      if (got == 0) fail("se ha cortado mientras se leía.");
      offset += static_cast<std::uint64_t>(got);
      room = room.subspan(static_cast<std::size_t>(got));
    }
  }

 private:
  [[noreturn]] void fail(const std::string& why) const {
    throw Error("No se puede leer «" + name_ + "»: " + why);
  }

  std::string name_;
  files::Descriptor file_;
  std::uint64_t size_ = 0;
};

std::uint32_t byteAt(std::string_view bytes, std::size_t position) {
  return static_cast<unsigned char>(bytes[position]);
}

}  // namespace

std::unique_ptr<Bytes> openFile(const std::filesystem::path& file) {
  return std::make_unique<File>(file);
}

std::string_view Window::at(std::uint64_t offset, std::size_t length) {
  if (offset < begin_ || offset + length > begin_ + piece_.size()) {
    const std::uint64_t left = size() - offset;
    piece_.resize(
        static_cast<std::size_t>(std::min<std::uint64_t>(left, std::max(pieceSize_, length))));
    begin_ = offset;
    bytes_->read(begin_, piece_);
  }
  return {piece_.data() + (offset - begin_), length};
}

std::uint32_t littleEndian(std::string_view bytes, std::size_t count) {
  std::uint32_t number = 0;
  while (count-- > 0) number = number << 8 | byteAt(bytes, count);
  return number;
}

std::uint32_t bigEndian(std::string_view bytes, std::size_t count) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < count; ++i) number = number << 8 | byteAt(bytes, i);
  return number;
}

}  // namespace fidaleon::dbase
