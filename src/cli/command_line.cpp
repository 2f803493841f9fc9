// The commands with their options, and the one place where failures become messages.
#include "cli/command_line.h"

#include <algorithm>
#include <cerrno>
#include <exception>
#include <functional>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <utility>

#include <CLI/CLI.hpp>

#include "cli/compare_command.h"
#include "cli/console.h"
#include "cli/convert_command.h"
#include "cli/exit_status.h"
#include "cli/list_command.h"
#include "cli/object_kinds.h"
#include "cli/preview_command.h"
#include "cli/record_command.h"
#include "cli/script_command.h"

namespace tarrowin {

namespace {

// What stands for an option that was given without a name; no object can bear it.
constexpr const char* kNoNameGiven = "\x01";

// Values of the option --designs.
constexpr const char* kDesignsOfFile = "file";
constexpr const char* kDesignsOfExport = "export";

class CommandLine {
 public:
  explicit CommandLine(const Environment& environment)
      : environment_(environment),
        app_("Converts Microsoft Access databases to Visual Basic 6 source.", "tarrowin-cli") {
    app_.set_version_flag("--version", kVersion, "Print the version and exit");
    app_.require_subcommand(1);
    app_.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app_.get_formatter()->label("Subcommands", "Commands");
    app_.footer(
        "Exit status: 0 all converted, 1 something selected was not converted, "
        "2 unusable arguments or source.");
    addList();
    addConvert();
    addRecord();
    addPreview();
    addCompare();
    addScript();
  }

  ExitStatus run(const std::vector<std::string>& arguments);

 private:
  static constexpr const char* kVersion = "tarrowin-cli " TARROWIN_VERSION;

  CLI::App* addCommand(const char* name, const char* description,
                       std::function<ExitStatus()> command) {
    CLI::App* added = app_.add_subcommand(name, description);
    added->set_version_flag("--version", kVersion, "Print the version and exit");
    added->callback([this, command = std::move(command)] { command_ = command; });
    return added;
  }
  void addSource(CLI::App& command, std::string& source) {
    command
        .add_option(
            "SOURCE", source,
            "The database: an .mdb file, a recording (.access.json), or a folder or file of "
            "objects that Access exported as text")
        ->required()
        ->option_text(" ");
    command
        .add_option_function<std::string>(
            "--designs", [this](const std::string& from) { takeDesignsFrom(from); },
            "Where the forms, reports and macros of an .mdb come from: the file itself, or the "
            "export folder beside it (NAME.mdb.src, NAME.src or source); file unless given")
        ->check(CLI::IsMember({kDesignsOfFile, kDesignsOfExport}))
        ->option_text("file|export");
  }
  void takeDesignsFrom(const std::string& source);
  static void addCodePage(CLI::App& command, int& codePage) {
    command
        .add_option("--code-page", codePage,
                    "The ANSI code page of the text that is written; 1252 unless given")
        ->option_text("N");
  }
  void addList();
  void addConvert();
  void addMachinePaths(CLI::App& command);
  void addKind(CLI::App& command, const ObjectKind& kind, CLI::Option& all);
  void addRecord();
  void addPreview();
  void addCompare();
  void addScript();
  ExitStatus convert();
  std::string commandWords() const;

  Environment environment_;
  CLI::App app_;
  std::function<ExitStatus()> command_;
  ListOptions list_;
  ConvertOptions convert_;
  RecordOptions record_;
  ScriptOptions script_;
  PreviewOptions preview_;
  CompareOptions compare_;
};

void CommandLine::takeDesignsFrom(const std::string& source) {
  if (source != kDesignsOfExport) return;
  environment_.run.createHost = [create = environment_.run.createHost](HostOptions options) {
    options.designsFromExports = true;
    return create(std::move(options));
  };
}

void CommandLine::addList() {
  CLI::App* command = addCommand("list", "List the objects of a database by kind",
                                 [this] { return listSource(environment_, list_); });
  addSource(*command, list_.source);
  command->add_flag("--detail", list_.detail,
                    "Tell of each form, report and macro how much of its design is understood");
  command->add_flag("--json", list_.json, "Print JSON for a program to read");
}

void CommandLine::addConvert() {
  CLI::App* command = addCommand("convert", "Convert objects of a database into a directory",
                                 [this] { return convert(); });
  addSource(*command, convert_.source);
  command->add_option("--to", convert_.directory, "The output directory, made when it is missing")
      ->required()
      ->option_text("DIR (required)");
  CLI::Option* all =
      command->add_flag("--all", convert_.all, "Convert everything, kind by kind, and the project")
          ->option_text(" ");
  for (const ObjectKind& kind : kObjectKinds) addKind(*command, kind, *all);
  command->add_flag("--single-file", convert_.singleFile,
                    "Convert several queries into a single module file");
  command->add_flag("--data-repeater", convert_.dataRepeater,
                    "Convert a continuous form through a DataRepeater: a user control with a "
                    "project of its own, and the form that hosts it");
  command->add_flag("--single-forms", convert_.singleForms,
                    "Make a form with page breaks into a new form a page instead of one new form "
                    "with a tab control");
  command
      ->add_option("--startup-form", convert_.startupForm,
                   "The form that projects start with; that of the database unless given")
      ->option_text("FORM");
  addMachinePaths(*command);
  addCodePage(*command, convert_.codePage);
  command->add_flag("--json", convert_.json, "Print JSON for a program to read");
  command->footer(
      "A kind without names means all of its list. Several kinds are converted in the order\n"
      "queries, forms, reports, macros, modules, project. Questions of the program are answered\n"
      "with yes, only the one whether to stop with no. More than 2820 queries are converted in\n"
      "several batches, unless they go into a single file. A \"--\" ends the names.\n"
      "\n"
      "Macros become modules of the database, and a form with page breaks becomes new forms in\n"
      "it, which a later run converts. A snapshot is changed; beside an .mdb the new objects are\n"
      "kept in a file of their own, which is read again with it.\n"
      "\n"
      "Projects name system files by their paths on the machine that will load them. These are\n"
      "in C:\\WINDOWS\\system32\\, C:\\Program Files\\Common Files\\Designer\\ and C:\\Program\n"
      "Files\\Common Files\\SYSTEM\\ADO\\ unless given; one given as \"\" counts as unknown.\n");
}

void CommandLine::addMachinePaths(CLI::App& command) {
  MachinePaths& machine = convert_.machine;
  const auto add = [&command](const char* option, std::optional<std::string>& path,
                              const std::string& description) {
    command.add_option(option, path, description)->option_text("DIR");
  };
  add("--system-dir", machine.systemDir,
      "Windows system directory of the machine that will load the projects");
  add("--msderun-path", machine.msderunPath, "Directory of msderun.dll on that machine");
  add("--msado-path", machine.msadoPath, "Directory of msado15.dll on that machine");
}

void CommandLine::addKind(CLI::App& command, const ObjectKind& kind, CLI::Option& all) {
  KindSelection& selection = convert_.kinds[indexOf(kind.list)];
  command
      .add_option_function<std::vector<std::string>>(
          "--" + std::string(kind.option),
          [&selection](const std::vector<std::string>& names) {
            selection.wanted = true;
            selection.names = names;
            std::erase(selection.names, kNoNameGiven);
          },
          kind.list == ObjectList::kObjects
              ? "Make a project of these forms and modules, or of all"
              : "Convert these " + std::string(kind.many) + ", or all")
      ->expected(0, -1)
      ->default_str(kNoNameGiven)
      ->option_text("[NAME...]")
      ->excludes(&all);
}

void CommandLine::addRecord() {
  CLI::App* command = addCommand(
      "record", "Write a recording of a database that the program opens like the original",
      [this] { return recordSource(environment_, record_); });
  addSource(*command, record_.source);
  command->add_option("FILE", record_.file, "The recording, by custom NAME.access.json")
      ->required()
      ->option_text(" ");
}

void CommandLine::addPreview() {
  CLI::App* command = addCommand(
      "preview", "List the Visual Basic controls that a form will have, and their places",
      [this] { return previewForm(environment_, preview_); });
  addSource(*command, preview_.source);
  command->add_option("FORM", preview_.form, "The form's name")->required()->option_text(" ");
  command->add_flag("--json", preview_.json, "Print JSON for a program to read");
}

void CommandLine::addCompare() {
  CLI::App* command = addCommand("compare", "Print where two databases differ, object by object",
                                 [this] { return compareSources(environment_, compare_); });
  command->add_option("A", compare_.first, "A database, as SOURCE of the other commands")
      ->required()
      ->option_text(" ");
  command->add_option("B", compare_.second, "The other one")->required()->option_text(" ");
  command->add_flag("--generators-only", compare_.generatorsOnly,
                    "Of forms and reports compare only the properties that conversions read");
  command->add_flag("--json", compare_.json, "Print JSON for a program to read");
  command->footer(
      "Compared are the fields of tables, relations, SQL texts, forms and reports with all that\n"
      "stands on them and their modules, macros as Visual Basic, and modules; the rows of tables\n"
      "are not. Exit status: 0 nothing differs, 1 something does, 2 unusable arguments or source.");
}

void CommandLine::addScript() {
  CLI::App* command =
      addCommand("script", "Run a session script and write a transcript of what the user would see",
                 [this] { return runScript(environment_, script_); });
  command->add_option("FILE", script_.file, "The script, a JSON list of steps")
      ->required()
      ->option_text(" ");
  command
      ->add_option("--transcript", script_.transcript,
                   "The file of the transcript; standard output unless given")
      ->option_text("FILE");
  addCodePage(*command, script_.codePage);
}

ExitStatus CommandLine::convert() {
  const bool anyKind =
      std::ranges::any_of(convert_.kinds, [](const KindSelection& kind) { return kind.wanted; });
  if (!anyKind && !convert_.all) {
    throw CommandFailure(
        "nothing to convert is named: give --queries, --forms, --reports, --macros, --modules, "
        "--project or --all");
  }
  return convertSource(environment_, convert_);
}

std::string CommandLine::commandWords() const {
  std::string words = "tarrowin-cli";
  for (const CLI::App* command : app_.get_subcommands()) words += " " + command->get_name();
  return words;
}

ExitStatus CommandLine::run(const std::vector<std::string>& arguments) {
  // The parser takes its arguments from the end of the list.
  std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
  try {
    app_.parse(std::move(reversed));
  } catch (const CLI::CallForHelp&) {
    environment_.console.print(app_.help());
    return ExitStatus::kDone;
  } catch (const CLI::CallForVersion&) {
    environment_.console.print(std::string(kVersion) + "\n");
    return ExitStatus::kDone;
  } catch (const CLI::ParseError& error) {
    throw CommandFailure(std::string(error.what()) + "\nsee " + commandWords() + " --help");
  }
  return command_();
}

// Everything that can go wrong ends here.
ExitStatus guarded(const Environment& environment, const std::function<ExitStatus()>& body) {
  try {
    return body();
  } catch (const VbError& error) {
    environment.console.ownMessage("error #" + std::to_string(error.number()) + ": " +
                                   error.description());
  } catch (const std::bad_alloc&) {
    environment.console.ownMessage("there is not enough memory");
  } catch (const std::exception& error) {
    environment.console.ownMessage(error.what());
  }
  return ExitStatus::kUnusable;
}

}  // namespace

int runCommandLine(const std::vector<std::string>& arguments, const Environment& environment) {
  ExitStatus status = guarded(environment, [&] { return CommandLine(environment).run(arguments); });
  Console& console = environment.console;
  console.flush();
  if (const int error = console.outputError()) {
    status = ExitStatus::kUnusable;
    // A reader that has seen enough is no news.
    if (error != EPIPE) {
      console.ownMessage("standard output: " + std::generic_category().message(error));
    }
  }
  return static_cast<int>(status);
}

}  // namespace tarrowin
