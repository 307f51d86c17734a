#include "support/pnm.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace tarnwick::testing {
namespace {

// The next word of the header, comments skipped.
std::string Word(std::istream& in) {
  std::string word;
  while (in >> word) {
    if (word[0] != '#') return word;
    std::getline(in, word);
  }
  return {};
}

Pnm ReadPamHeader(std::istream& in) {
  Pnm picture;
  for (std::string word = Word(in); !word.empty() && word != "ENDHDR"; word = Word(in)) {
    if (word == "WIDTH") in >> picture.width;
    if (word == "HEIGHT") in >> picture.height;
    if (word == "DEPTH") in >> picture.planes;
  }
  return picture;
}

}  // namespace

Pnm ReadPnm(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  const std::string magic = Word(in);
  Pnm picture;
  if (magic == "P7") {
    picture = ReadPamHeader(in);
  } else if (magic == "P5" || magic == "P6") {
    picture.planes = magic == "P5" ? 1 : 3;
    picture.width = std::stoi(Word(in));
    picture.height = std::stoi(Word(in));
    (void)Word(in);
  } else {
    throw std::runtime_error(path + ": no PNM file");
  }
  in.get();  // the one byte between header and samples
  picture.samples.resize(static_cast<std::size_t>(picture.width) *
                         static_cast<std::size_t>(picture.height) *
                         static_cast<std::size_t>(picture.planes));
  in.read(reinterpret_cast<char*>(picture.samples.data()),
          static_cast<std::streamsize>(picture.samples.size()));
  if (!in) throw std::runtime_error(path + ": cut short");
  return picture;
}

bool FileExists(const std::string& path) {
  return std::ifstream(path, std::ios::binary).good();
}

std::string ReadText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path + ": cannot be read");
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string FirstDifference(const Pnm& got, const Pnm& wanted) {
  std::ostringstream text;
  if (got.width != wanted.width || got.height != wanted.height || got.planes != wanted.planes) {
    text << got.width << 'x' << got.height << 'x' << got.planes << ", wanted " << wanted.width
         << 'x' << wanted.height << 'x' << wanted.planes;
    return text.str();
  }
  std::size_t first = got.samples.size();
  std::size_t count = 0;
  for (std::size_t i = got.samples.size(); i-- > 0;) {
    if (got.samples[i] == wanted.samples[i]) continue;
    first = i;
    ++count;
  }
  if (count == 0) return {};
  const auto planes = static_cast<std::size_t>(got.planes);
  const auto width = static_cast<std::size_t>(got.width);
  text << "x " << first / planes % width << " y " << first / planes / width << " plane "
       << first % planes << ": " << int{got.samples[first]} << ", wanted "
       << int{wanted.samples[first]} << " (" << count << " samples differ)";
  return text.str();
}

}  // namespace tarnwick::testing
