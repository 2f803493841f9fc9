// The controls, their titles and their texts.
#include "help/control_topics.h"

namespace tarrowin {

namespace {

constexpr BatchSize kForms{"Forms", 100, 50};
constexpr BatchSize kModules{"Modules", 100, 50};
constexpr BatchSize kFormsAndModules{"Forms and Modules", 100, 50};
constexpr BatchSize kReports{"Reports", 100, 25};
constexpr BatchSize kMacros{"Macros", 100, 25};
constexpr BatchSize kQueries{"Queries", 50, 25};

constexpr ControlTopic kTopics[] = {
    {"cmdAllForms", kAnyIndex, "Convert All Forms",
     "Converts all forms in the list to Visual Basic forms (.frm), as if all were selected. Files "
     "of the same name in the folder under Save in are replaced without asking.\r\n"
     "\r\n"
     "A project (.vbp) named after the database is written as well if there are several forms.",
     &kForms},
    {"cmdAllMacros", kAnyIndex, "Convert All Macros",
     "Converts all macros in the list to modules of the database. The modules then stand in the "
     "lists of the Modules tab and of the project tab, from which you convert them to Visual "
     "Basic.",
     &kMacros},
    {"cmdAllMods", kAnyIndex, "Convert All Modules",
     "Converts all modules in the list, standard modules to .bas files and class modules to .cls "
     "files. Files of the same name in the folder under Save in are replaced without asking.",
     &kModules},
    {"cmdAllObjs", kAnyIndex, "Convert All Objects",
     "Converts all forms and modules in the list and writes one Visual Basic project (.vbp) for "
     "them. Files of the same name in the folder under Save in are replaced without asking.",
     &kFormsAndModules},
    {"cmdAllQrys", kAnyIndex, "Convert All Queries",
     "Converts all queries in the list to Visual Basic modules (.bas), one module for each query "
     "or, if the check box on this tab is checked, one for all. If there are more than 50 queries, "
     "you are asked first.",
     &kQueries},
    {"cmdAllReports", kAnyIndex, "Convert All Reports",
     "Converts all reports in the list. Each becomes a Data Environment and a Data Report (.dsr "
     "files), and a project (.vbp) with a form to view the reports is written.",
     &kReports},
    {"cmdBrowse", kAnyIndex, "Browse Folders",
     "Lets you choose the folder for the converted files. Its path is put into Save in. If you "
     "cancel, nothing changes."},
    {"cmdConvertFrm", kAnyIndex, "Convert Selected Forms",
     "Converts the selected forms to Visual Basic forms (.frm) in the folder under Save in. Files "
     "of the same name are replaced without asking.\r\n"
     "\r\n"
     "The code behind a form is rewritten line by line, and what Visual Basic does not have is "
     "kept as a comment. A project (.vbp) is written if several forms are converted or if the form "
     "needs control libraries.",
     &kForms},
    {"cmdConvertMac", kAnyIndex, "Convert Selected Macros",
     "Converts the selected macros to modules of the database. The macro Open Orders becomes the "
     "module Converted Macro- Open Orders, which then stands in the lists of the Modules tab and "
     "of the project tab. Convert it there to get the file Macro_Open_Orders.bas.\r\n"
     "\r\n"
     "An .mdb file itself is not changed: the new modules are kept in a file beside it.",
     &kMacros},
    {"cmdConvertMod", kAnyIndex, "Convert Selected Modules",
     "Converts the selected modules, standard modules to .bas files and class modules to .cls "
     "files, in the folder under Save in. Files of the same name are replaced without asking.\r\n"
     "\r\n"
     "The code is rewritten line by line, and what Visual Basic does not have is kept as a "
     "comment. A module without a line of code is not converted.",
     &kModules},
    {"cmdConvertObj", kAnyIndex, "Convert Selected Objects",
     "Converts the selected forms and modules and writes one Visual Basic project (.vbp) for them. "
     "Files of the same name in the folder under Save in are replaced without asking.\r\n"
     "\r\n"
     "Continuous forms and forms with page breaks are converted like plain forms here. Use the "
     "Forms tab for the other ways.",
     &kFormsAndModules},
    {"cmdConvertQry", kAnyIndex, "Convert Selected Queries",
     "Converts the selected queries to Visual Basic modules (.bas) in the folder under Save in. "
     "Each query becomes a procedure that puts the SQL text into a string. If more than 50 queries "
     "are selected, you are asked first.",
     &kQueries},
    {"cmdConvertRpt", kAnyIndex, "Convert Selected Reports",
     "Converts the selected reports. The report Sales becomes the Data Environment deSales.dsr and "
     "the Data Report Sales.dsr, and a project (.vbp) with a form to view the reports is written. "
     "Files of the same name in the folder under Save in are replaced without asking.\r\n"
     "\r\n"
     "The code of a report is not converted.",
     &kReports},
    {"cmdObjProps", kAnyIndex, "Preview Access Forms",
     "Shows how the first selected form will look in Visual Basic. No file is written."},
    {"cmdOpen", kAnyIndex, "Open Access Database",
     "Opens a database of Microsoft Access 97, 2000, 2002 or 2003 (.mdb) and lists its objects on "
     "the tabs. A database that is open is closed first.\r\n"
     "\r\n"
     "No macro, start-up form or code of the database is run. A snapshot of a database "
     "(.access.json) can be opened as well."},
    {"lblSelectVBStartupForm", kAnyIndex, "Select VB StartUp Form",
     "The form that the Visual Basic program shows first. At first it is the start-up form of the "
     "database or, if it has none, the first form in the list.\r\n"
     "\r\n"
     "Choose a form that is part of the project: the name is written to the project whether "
     "or not that form is converted, with underscores in place of blanks and the like."},
    {"lstForms", kAnyIndex, "Forms List",
     "The forms of the database. Click a form to select it, Ctrl+click for more, Shift+click for a "
     "range. Double-click a form to convert it alone."},
    {"lstMacros", kAnyIndex, "Macros List",
     "The macros of the database. Click a macro to select it, Ctrl+click for more, Shift+click for "
     "a range. Double-click a macro to convert it alone."},
    {"lstModules", kAnyIndex, "Modules List",
     "The standard and class modules of the database, and the modules that macros were converted "
     "to. Click a module to select it, Ctrl+click for more, Shift+click for a range. Double-click "
     "a module to convert it alone."},
    {"lstObjects", kAnyIndex, "Forms and Modules List",
     "The forms of the database and behind them its modules. Click an object to select it, "
     "Ctrl+click for more, Shift+click for a range. Double-click an object to convert it alone, "
     "with a project for it."},
    {"lstQueries", kAnyIndex, "Queries List",
     "The queries of the database, without the hidden ones that belong to forms and reports. Click "
     "a query to select it, Ctrl+click for more, Shift+click for a range. Double-click a query to "
     "convert it alone."},
    {"lstReports", kAnyIndex, "Reports List",
     "The reports of the database. Click a report to select it, Ctrl+click for more, Shift+click "
     "for a range. Double-click a report to convert it alone."},
    {"optContinuous", 0, "Convert Continuous Forms",
     "DataGrid Control: a continuous form is converted like any other form and shows one record at "
     "a time. A continuous subform becomes a DataGrid with an ADO data control."},
    {"optContinuous",
     1,
     "Convert Continuous Forms",
     "DataRepeater Control: a continuous form is converted to a user control (.ctl) that holds one "
     "record, and a form (.frm) with a DataRepeater that repeats it. A project group (.vbg) holds "
     "the two projects (.vbp).",
     nullptr,
     {{{"Using the DataRepeater Control", TopicId::kDataRepeater}}}},
    {"optMultiPage", 0, "Convert Multi-Page Forms",
     "Tab Form: for a form with page breaks, a new form with a tab control is made in the "
     "database, with the controls of each page on a tab. A form with more than two pages is not "
     "divided correctly this way; use Single Forms for it. The form itself stays as it is, and its "
     "code is not copied.\r\n"
     "\r\n"
     "Start Tarrowin again, open the database and convert the new form. An .mdb file itself is not "
     "changed: new forms are kept in a file beside it."},
    {"optMultiPage", 1, "Convert Multi-Page Forms",
     "Single Forms: for a form with page breaks, a new form is made in the database for each page. "
     "The form itself stays as it is, and its code is not copied.\r\n"
     "\r\n"
     "Start Tarrowin again, open the database and convert the new forms. An .mdb file itself is "
     "not changed: new forms are kept in a file beside it."},
    {"chkMultiSel", kAnyIndex, "Convert Multiple Query Selections",
     "If this is checked and several queries are selected, they are written to one module, named "
     "after the database: the queries of Orders.mdb go to OrdersQueries.bas. Otherwise each query "
     "is written to a module of its own."},
    {"txtCurDir", kAnyIndex, "Save in Folder",
     "The folder for the converted files. Type its path or click Browse Folders. If the folder "
     "does not exist, you are asked whether to create it, in a folder that does.\r\n"
     "\r\n"
     "Files of the same name are replaced without asking, so take an empty folder."},
    {"tabSelect", 0, "Query Selections",
     "Converts queries to Visual Basic modules (.bas). Select them in the list and click Convert "
     "Selected Queries, or click Convert All Queries."},
    {"tabSelect", 1, "Form Selections",
     "Converts forms to Visual Basic forms (.frm). Choose what continuous and multi-page forms "
     "become, select the forms in the list and click Convert Selected Forms, or click Convert All "
     "Forms."},
    {"tabSelect", 2, "Report Selections",
     "Converts reports to Data Environments and Data Reports (.dsr). The paths on this tab are "
     "those of msderun.dll and msado15.dll on the computer that has Visual Basic; they are written "
     "to the project."},
    {"tabSelect", 3, "Macro Selections",
     "Converts macros to modules of the database, which you then convert on the Modules tab or on "
     "the project tab."},
    {"tabSelect", 4, "Module Selections",
     "Converts standard modules to .bas files and class modules to .cls files. Select them in the "
     "list and click Convert Selected Modules, or click Convert All Modules."},
    {"tabSelect", 5, "Form and Module Selections",
     "Converts forms and modules together and writes one Visual Basic project (.vbp) for them. "
     "Choose the form that the program shows first, and select the objects in the list."},
    {"tabSelect", kAnyIndex, "Tab Selections",
     "The tabs list the objects of the database by kind: queries, forms, reports, macros and "
     "modules. The sixth tab makes a project of forms and modules, and the How to tab tells what "
     "to do step by step."},
};

}  // namespace

std::span<const ControlTopic> controlTopics() { return kTopics; }

std::string textOf(const ControlTopic& topic) {
  std::string text(topic.text);
  if (!topic.batchSize) return text;
  const BatchSize& size = *topic.batchSize;
  return text + "\r\n\r\nIf there are more than " + std::to_string(size.databaseSize) + " " +
         std::string(size.plural) +
         " in the database, it is recommended that you convert no more than about " +
         std::to_string(size.batchSize) + " of them at a time.";
}

}  // namespace tarrowin
