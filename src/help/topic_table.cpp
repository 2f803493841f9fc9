// The topics of the menu tree and their texts.
#include "help/about.h"
#include "help/system_information.h"
#include "help/topic_tree.h"

namespace tarrowin {

namespace {

std::string aboutText() {
  return AboutAppInfo() +
         "\r\n"
         "\r\n"
         "Converts the queries, forms, reports, macros and modules of a Microsoft Access database "
         "to Visual Basic 6 source files.";
}

constexpr Topic kTopics[] = {
    {TopicId::kMain,
     "Tarrowin",
     "Tarrowin converts the objects of a Microsoft Access database to Visual Basic 6 source "
     "files.\r\n"
     "\r\n"
     "What would you like to know about?",
     {{{"Using Tarrowin", TopicId::kUsing},
       {"Access Objects", TopicId::kControls},
       {"Conversion Tips", TopicId::kTips},
       {"VBA Code", TopicId::kVbaCode},
       {"About Tarrowin", TopicId::kAbout}}}},

    {TopicId::kUsing,
     "Tarrowin Help",
     "For help on a part of the Tarrowin window, right-click it. The How to tab lists the steps "
     "for each kind of object.\r\n"
     "\r\n"
     "Choose a topic:",
     {{{"Tarrowin Overview", TopicId::kOverview},
       {"Converting Objects", TopicId::kObjects},
       {"Technical Support", TopicId::kSupport}}}},

    {TopicId::kOverview, "Tarrowin Overview",
     "Tarrowin opens a database of Microsoft Access 97, 2000, 2002 or 2003 (.mdb), lists its "
     "queries, forms, reports, macros and modules, and writes those that you select as Visual "
     "Basic 6 source files into the folder under Save in. Files of the same name are replaced "
     "without asking.\r\n"
     "\r\n"
     "A query becomes a module (.bas). A form becomes a form (.frm). A report becomes a Data "
     "Environment and a Data Report (two .dsr files). A module becomes a module (.bas) or a class "
     "module (.cls). A macro becomes a module of the database, which is then converted like any "
     "other.\r\n"
     "\r\n"
     "A project (.vbp) is written when several forms are converted or a form needs control "
     "libraries, for reports, and always on the tab for projects. A continuous form that is "
     "converted to a DataRepeater also gets a user control (.ctl) and a project group (.vbg).\r\n"
     "\r\n"
     "Tarrowin reads the database itself: neither Access nor Visual Basic has to be installed, and "
     "no macro and no code of the database is run."},

    {TopicId::kObjects,
     "Converting Objects",
     "Open a database, enter the folder under Save in, and turn to the tab of the objects that you "
     "want. Select one or more of them and click Convert Selected, or click Convert All.\r\n"
     "\r\n"
     "When all are done, a message says what was converted, how long it took and where the files "
     "are.",
     {{{"Selecting Multiple Objects", TopicId::kSelection},
       {"Visual Basic and Converted Objects", TopicId::kConvertedObjects},
       {"Conversion Tips", TopicId::kTips},
       {"ActiveX Controls", TopicId::kActiveX},
       {"Previous Versions of Access", TopicId::kEarlierVersions}}}},

    {TopicId::kControls,
     "Access Objects",
     "Most controls have a Visual Basic control of the same kind. These need a closer look. Choose "
     "any of them for the list of all converted controls.",
     {{{"Images and buttons: a picture in a file is loaded by a LoadPicture statement in the code "
        "of the form. A picture embedded in the database is not converted; set it in Visual Basic.",
        TopicId::kConverted},
       {"OLE frames: bound and unbound object frames become OLE controls that name their class and "
        "source document. Embedded objects themselves are not converted.",
        TopicId::kConverted},
       {"Bound lists: a combo box or list box on a table, query or field list becomes a DBCombo or "
        "DBList. One with a value list becomes a ComboBox or ListBox that is filled by code.",
        TopicId::kConverted},
       {"Subforms: a single form becomes a picture box with its controls, a continuous form or "
        "datasheet a DataGrid with an ADO data control. A control whose name is taken gets _Dup "
        "and a number behind it.",
        TopicId::kConverted},
       {"Tab and grid controls: a tab control becomes an SSTab with its pages. A DataGrid of the "
        "form is written with two Begin lines and one End: delete one of the Begin lines before "
        "you load the form.",
        TopicId::kConverted}}}},

    {TopicId::kConverted,
     "Converted Controls",
     "What each control of an Access form becomes in Visual Basic:",
     {},
     {"Text Box: TextBox. Label: Label. Command Button: CommandButton. Toggle Button: "
      "CommandButton, which does not stay down.",
      "Check Box: CheckBox. Option Button: OptionButton. Option Group: Frame with its contents. "
      "Combo Box: ComboBox or DBCombo. List Box: ListBox or DBList.",
      "Rectangle: Shape. Line: Line, always level, because the height of the Access line is not "
      "used. Image: Image. Bound and unbound object frames: OLE.",
      "Tab Control: SSTab. Subform: PictureBox with the controls of the subform, or ADO data "
      "control and DataGrid.",
      "ActiveX controls keep their class where it is supported. Page breaks and everything else "
      "become a Shape in the same place, to remind you that something is missing."}},

    {TopicId::kActiveX,
     "ActiveX Custom Controls",
     "An ActiveX control on a form keeps its class and the properties that can be read. Supported "
     "are:",
     {},
     {"ADO data control (Adodc), Calendar, Common Dialog, DataGrid, RichTextBox.",
      "ImageCombo, ImageList, ListView, ProgressBar, Slider, StatusBar, TabStrip, ToolBar, "
      "TreeView.",
      "A control of any other class becomes a Shape in the same place and of the same size.",
      "What such a control is filled with is not converted: the pictures of an ImageList, the "
      "items of a ListView, the nodes of a TreeView, the panels of a StatusBar, the buttons of a "
      "ToolBar.",
      "A form with an ActiveX control of this list always gets a project (.vbp), which names the "
      "control's library. The library must be registered on the computer that has Visual Basic."}},

    {TopicId::kEarlierVersions, "Previous Versions of Access",
     "Tarrowin opens databases (.mdb) of Access 97, 2000, 2002 and 2003. It refuses databases of "
     "Access 95 and earlier: convert them with your version of Access first. It also refuses "
     "databases of Access 2007 and later (.accdb): save them as an Access 2002-2003 database "
     "(.mdb) first.\r\n"
     "\r\n"
     "The code behind the forms of an Access 97 database is not converted. If you need it, convert "
     "the database to Access 2000, 2002 or 2003 first. Modules of Access 97 are converted like all "
     "others.\r\n"
     "\r\n"
     "The hidden data control of a form connects with Access for an Access 97 database, and with "
     "Access 2000 for later ones."},

    {TopicId::kHints,
     "Conversion Hints",
     "Four things to know before you load converted objects:",
     {},
     {"Converted objects run in 32-bit Visual Basic 6.0 only.",
      "LOG files: when Visual Basic cannot load a part of a form, it writes a LOG file beside the "
      "form, such as Orders.log for Orders.frm. It tells each load error with its line.",
      "Form_Open and Form_Load: the Open event of an Access form becomes Form_Initialize, in which "
      "the form is not yet loaded. Where a form has both Form_Open and Form_Load, combine them in "
      "Form_Load, and keep the statements that load images or list items only once.",
      "Large forms: a Visual Basic form takes no more than 254 control names. The message after a "
      "conversion names the forms that have more. Too many controls may crash Visual Basic, so "
      "divide such a form in Access first and convert it again."}},

    {TopicId::kVbaCode,
     "VBA Code",
     "Code is rewritten line by line. Some of it needs your hand before it compiles and runs:",
     {},
     {"DAO: a DAO reference is added automatically to projects that need it, if the path of the "
      "DAO library is known. If Visual Basic reports a user-defined type that is not defined at a "
      "Database variable, choose Project, References and check Microsoft DAO 3.6 Object Library.",
      "As Form_Test: the class of an Access form, here of a form named Test, does not exist in "
      "Visual Basic. As Form_Test must be changed to As Form.",
      "Forms!<FormName>.Visible fails, because Visual Basic finds a form by its name alone. It "
      "must be written <FormName>.Visible, and other properties likewise.",
      "Recordsets: every line with As Recordset, OpenRecordset, CreateQueryDef, Delete or Execute "
      "comes out as a comment, even when the word is part of a name or a text. Lines that use a "
      "recordset stay as they are and do not compile until you declare and open it again.",
      "Me: a line with Me. is written as it is and then once more with its first exclamation mark "
      "changed to a period, in forms also as a comment. Keep the line that you need and delete the "
      "others. Behind a line without an exclamation mark they are empty."}},

    {TopicId::kTips,
     "Visual Basic Tips",
     "What becomes of Access statements that Visual Basic does not have:",
     {},
     {"Databases: the three database methods CloseCurrentDatabase, NewCurrentDatabase and "
      "OpenCurrentDatabase are commented because they have no Visual Basic equivalent. Set dbs = "
      "CurrentDB turns into Set dbs = OpenDatabase with the path of the database; change the path "
      "if the database moves. The spelling that is recognized is that of Access, CurrentDb. A "
      "member of it behind an equals sign, as in x = CurrentDb.Name, is commented.",
      "DoCmd.OpenForm \"Orders\" turns into Orders.Show. With a variable name in place of the "
      "quoted name the line comes out as a comment.",
      "Other DoCmd lines: Close, Requery and a few more are rewritten if the method comes first in "
      "the line and, where they act on an object, the object is named in quotes. All others are "
      "commented. A Close with an argument also adds Unload Me, and a Requery with an argument a "
      "line that starts with End: delete what does not belong there, or it ends your program.",
      "All SysCmd commands are commented. Two kinds of lines are not recognized: those that also "
      "contain If, and those without a parenthesis behind SysCmd. Change them yourself.",
      "Form code: one kind of generated statement is added per form, to load images, or else to "
      "fill combo boxes, or else list boxes; add the others yourself. A double-click event is "
      "rewritten without its argument; if the name of the control has an underscore, correct that "
      "line."}},

    {TopicId::kConvertedObjects,
     "Visual Basic and Converted Objects",
     "Files and controls are named after the Access objects. Characters other than letters, digits "
     "and the underscore become underscores, a first character that is not a letter becomes an x, "
     "and names end after 40 characters. Two objects that come to the same name share one file, "
     "and the later one replaces the earlier one.\r\n"
     "\r\n"
     "The sections of a form stand one below the other. The Visual Basic form is no higher than "
     "11520 twips and no wider than 15360 twips; controls beyond that keep their places.\r\n"
     "\r\n"
     "A form with a record source gets a hidden data control, to which its controls are bound. It "
     "names the database file without its folder: set DatabaseName in Visual Basic if the file is "
     "not found.\r\n"
     "\r\n"
     "A report project starts with a form that has one button. In the code of the button, remove "
     "the apostrophe in front of the report that you want to show.",
     {{{"Conversion Hints", TopicId::kHints}}}},

    {TopicId::kSelection, "Selecting Multiple Modules",
     "In the list of modules, and in every other list, several objects can be selected at once:\r\n"
     "\r\n"
     "Click an object to select it alone. Hold Ctrl and click to add an object to the selection or "
     "take it out. Hold Shift and click to select all objects from the last one to the one "
     "clicked.\r\n"
     "\r\n"
     "The Convert All button selects everything in its list. A double-click on an object converts "
     "that object alone, also when others were selected before.\r\n"
     "\r\n"
     "Queries that are selected together can go to one module: see the check box on the Queries "
     "tab."},

    {TopicId::kDataRepeater, "Using the DataRepeater Control",
     "A DataRepeater shows one user control for each record. From a continuous form named Orders, "
     "Tarrowin writes the user control ctlOrders.ctl, the form Orders.frm that holds the "
     "DataRepeater, the project Orders.vbp, the control project ctlOrders.vbp and the project "
     "group Orders.vbg.\r\n"
     "\r\n"
     "1. Open Orders.vbg in Visual Basic. If one of the projects is not in the group, add it with "
     "File, Add Project.\r\n"
     "2. Select the control project and make its .ocx file with File, Make Orders.ocx. A "
     "DataRepeater can only repeat a control that is compiled and registered.\r\n"
     "3. On the form, delete the controls that stand behind the DataRepeater: they are the "
     "controls of the Access form once more.\r\n"
     "4. In the property pages of the DataRepeater, choose the new control as the repeated "
     "control.\r\n"
     "5. On its RepeaterBindings page, pair each property of the control with its field. The "
     "converted names start with txt or chk, while the properties of the user control are named "
     "like the Access controls.\r\n"
     "6. Check the connection of the ADO data control Adodc1, and run the project."},

    {TopicId::kSupport, "Tarrowin Support",
     "Most questions are answered by a right-click on the part of the window in question, by the "
     "How to tab and by the help topics.\r\n"
     "\r\n"
     "If a problem remains, tell the person who supports Tarrowin where you work:\r\n"
     "- the version of Tarrowin and the System Information, from the About topic,\r\n"
     "- the version of Access that made the database, as the title of the window shows it,\r\n"
     "- the name and the kind of the object,\r\n"
     "- the text of the message word for word, with its error number,\r\n"
     "- what Visual Basic reports, and its LOG file if there is one."},

    {TopicId::kAbout,
     "About Tarrowin",
     {},
     {{{"System Information", TopicId::kSystemInformation}}},
     {},
     aboutText},

    {TopicId::kSystemInformation, "System Information", {}, {}, {}, systemInformation},
};

}  // namespace

std::span<const Topic> helpTopics() { return kTopics; }

}  // namespace tarrowin
