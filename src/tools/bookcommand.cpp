#include "chronicle/book.h"
#include "records/store/disk.h"
#include "report/family.h"
#include "tools/commands.h"

namespace grapplemont::tools {

namespace {

constexpr OptionKind kBookOptions[] = {{"--voice", "0..2"}};

int WriteTheBook(const Arguments& arguments, Shell& shell) {
  if (arguments.Place(1).ends_with(".pdf"))
    throw WorldFault(
        "This book is a page of HTML. The window writes it as PDF, on its page "
        "Chronicle.");
  const auto disk = RealDisk();
  const World world = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  if (!world.HasGame()) throw WorldFault(arguments.Place(0) + " holds no saved game.");
  const int reporter = world.Game().Reporter;
  const auto voice = arguments.Number("--voice", kLamplighter, kQvd);
  const Archive archive(world);
  const WorldBook book = WriteBook(archive, voice ? static_cast<int>(*voice) : reporter);
  const std::string html = HtmlOf(world, book, {SvgOf});
  WriteFile(*disk, arguments.Place(1), std::as_bytes(std::span(html)));
  std::size_t chapters = 0;
  for (const BookPart& part : book.Parts) chapters += part.Chapters.size();
  shell.Out << arguments.Place(1) << ": " << chapters << " chapters\n";
  return 0;
}

}  // namespace

const Command kBook{"book", "SLOT FILE",
                    "Writes the chronicle of the game in the folder SLOT into FILE, a page of "
                    "HTML: every sentence leads to the records that prove it.",
                    kBookOptions, WriteTheBook};

}  // namespace grapplemont::tools
