// What the user does in each tab, step by step.
#include "help/how_to_pages.h"

namespace tarrowin {

namespace {

constexpr std::array<HowToPage, kHowToPages> kPages = {{
    {"Overview",
     {"Click Open Access Database and choose a database of Access 97, 2000, 2002 or 2003 (.mdb). "
      "The tabs then list its objects.",
      "Type the folder for the converted files into Save in, or click Browse Folders. Take an "
      "empty folder: files of the same name are replaced without asking.",
      "If you need the macros, convert them first. They become modules, which you then convert "
      "with the other modules.",
      "Turn to the tab of the objects that you want and select them: click for one, Ctrl+click for "
      "more, Shift+click for a range.",
      "Click the tab's Convert Selected or Convert All button and wait for the message. It says "
      "what was converted, how long it took and where the files are.",
      "Take the files to the computer that has Visual Basic 6 and open the project (.vbp) or the "
      "project group (.vbg) there.",
      "Work through the lines of code that were commented. Click Tarrowin Help on the toolbar for "
      "what to put in their place."}},
    {"Converting Queries",
     {"Click the Queries tab and select one or more queries.",
      "To collect them in one file, check Convert multiple Query selections into a single Visual "
      "Basic Module (.bas) file. The queries of Orders.mdb then go to OrdersQueries.bas. Otherwise "
      "each query gets a module of its own.",
      "Click Convert Selected Queries or Convert All Queries. If there are more than 50 queries, "
      "convert about 25 at a time.",
      "In Visual Basic, add the files to your project with Project, Add Module.",
      "Each query is a procedure that puts the SQL text of the query into strSQL. Add the "
      "statement that uses it, such as dbs.Execute strSQL for an action query.",
      "Double quotes inside the SQL text have become single quotes. Check criteria that contain an "
      "apostrophe.",
      "Line ends have become blanks, and so have some typographic characters such as curly quotes "
      "and dashes. Replace references to Access forms and fill in parameters yourself."}},
    {"Converting Forms",
     {"Click the Forms tab and select one or more forms. Preview Form shows how the first of them "
      "will look.",
      "Under Convert Continuous Forms to, choose DataGrid Control or DataRepeater Control. "
      "Right-click an option to see what it does.",
      "Under Convert Multi-Page Forms to, choose Tab Form or Single Forms for forms with page "
      "breaks.",
      "Click Convert Selected Forms or Convert All Forms. If there are more than 100 forms, "
      "convert about 50 at a time.",
      "If the message says that multi-page forms were converted, exit Tarrowin, start it again, "
      "open the database and convert the new forms.",
      "Open the project in Visual Basic. If it reports errors while it loads a form, read the LOG "
      "file that it writes beside the form.",
      "Where a form has both Form_Initialize, which was Form_Open, and Form_Load, combine the two "
      "in Form_Load. Then work through the commented lines."}},
    {"Converting Reports",
     {"Click the Reports tab and check the folders of msderun.dll and msado15.dll on the computer "
      "that has Visual Basic. To change one, click its Locate path button and choose the file.",
      "Select one or more reports.",
      "Click Convert Selected Reports or Convert All Reports. If there are more than 100 reports, "
      "convert about 25 at a time.",
      "A report named Sales gives a Data Environment, deSales.dsr, and a Data Report, Sales.dsr. A "
      "project (.vbp) with a form to view the reports is written as well.",
      "Open the project in Visual Basic. In the code of cmdViewReport, remove the apostrophe in "
      "front of the report that you want to show.",
      "If a report is based on a parameter query, fill in the parameters in the line that is "
      "marked for it, and remove the apostrophe there too.",
      "Add what could not be converted: the report's code, and the contents of subreports, check "
      "boxes and combo boxes, which are kept as empty shapes."}},
    {"Converting Macros",
     {"Click the Macros tab and select one or more macros.",
      "See that Save in names a folder. It is asked for although this step writes no file there.",
      "Click Convert Selected Macros or Convert All Macros. If there are more than 100 macros, "
      "convert about 25 at a time.",
      "Each macro becomes a module in the list of the Modules tab: Open Orders becomes Converted "
      "Macro- Open Orders. The .mdb file is not changed; the new modules are kept in a file beside "
      "it.",
      "Click the Modules tab, select the new modules and click Convert Selected Modules. The files "
      "are named like Macro_Open_Orders.bas.",
      "In Visual Basic, work through the DoCmd lines. Most macro actions have no equivalent there "
      "and come out as comments."}},
    {"Converting Modules",
     {"Click the Modules tab and select one or more modules.",
      "Click Convert Selected Modules or Convert All Modules. If there are more than 100 modules, "
      "convert about 50 at a time.",
      "A standard module becomes a .bas file and a class module a .cls file. A module without a "
      "line of code is not converted.",
      "In Visual Basic, add the files with Project, Add Module or Add Class Module, and check the "
      "name of each in the Properties window: the files do not hold it.",
      "If the code uses a Database variable, choose Project, References and check Microsoft DAO "
      "3.6 Object Library.",
      "Go through the commented lines. Lines that open or declare recordsets are commented, but "
      "lines that use them are not.",
      "Choose Run, Start With Full Compile, and correct what is reported until nothing is."}},
    {"Creating Visual Basic Projects",
     {"Click the Create Visual Basic 6 Project (.vbp) tab.",
      "Under Select VB Startup Form, choose the form that the program is to show first.",
      "Select the forms and modules of the project. Where a module of the same name follows "
      "a form directly in the selection, only the form is converted.",
      "Click Convert Selected Objects or Convert All Objects. If there are more than 100 forms and "
      "modules, convert about 50 at a time.",
      "Each form and module is converted, and a project (.vbp) is written. It is named after the "
      "form if there is one form, after the module if there is one module and no form, and "
      "otherwise after the database.",
      "Continuous forms and multi-page forms are converted here like plain forms. For a "
      "DataRepeater, a tab form or single forms, use the Forms tab.",
      "Open the project in Visual Basic, check Project, References and Project, Components for "
      "what is missing, and compile it."}},
}};

}  // namespace

std::span<const HowToPage, kHowToPages> howToPages() { return kPages; }

}  // namespace tarrowin
