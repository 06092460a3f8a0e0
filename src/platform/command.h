// The commands of the program, by the numbers that menus, toolbar and buttons send. The window's resources
// take the numbers from here.
#pragma once

namespace varlo {

enum class Command : int {
  None = 0,

  // File
  NewStore = 40001,
  OpenStore = 40002,
  Save = 40003,
  SaveAs = 40004,
  RestoreBackup = 40005,
  Import = 40006,
  Merge = 40007,
  Upgrade = 40008,
  Quit = 40009,

  // Edit; each goes where the focus is
  Copy = 40101,
  Paste = 40102,
  Disable = 40103,
  Enable = 40104,
  Delete = 40105,
  NewCategory = 40106,
  NewProduct = 40107,
  NewShelf = 40108,
  NewList = 40109,
  Find = 40110,
  SelectAll = 40111,

  // View
  ViewOrders = 40201,
  ToggleToolbar = 40202,
  ToggleButtons = 40203,

  // Options
  Preferences = 40301,
  PreviewPage = 40302,
  BuildStore = 40303,
  CreditCards = 40304,
  FreightRegions = 40305,
  TaxOptions = 40306,
  ImportFreight = 40307,

  // Help
  About = 40401,
  Help = 40402,
  Faq = 40403,
  Manual = 40404,

  // The popup menu of the tree
  TreeNewCategory = 40501,
  TreeCopy = 40502,
  TreePaste = 40503,
  TreeDelete = 40504,
  TreeDisable = 40505,
  TreeEnable = 40506,

  // The popup menu of the item list
  ListCopy = 40601,
  ListPaste = 40602,
  ListDelete = 40603,
  ListDisable = 40604,
  ListEnable = 40605,
  ListSelectAll = 40606,

  // The popup menus of the import window: of a heading, one for each field by its number, and of the rows
  ColumnFirstField = 40801,
  ColumnLastField = 40826,
  ColumnClear = 40827,
  RowsImport = 40831,
  RowsUpdate = 40832,
  RowsDelete = 40833,
  RowsSelectAll = 40834,

  // The popup menus of the region lists
  SelectAllOfferedRegions = 40611,
  SelectAllStoreRegions = 40612,

  // The popup menu of the Freight tab
  RegionAddRemove = 40621,
  RegionCopy = 40622,
  RegionPaste = 40623,
  RegionClear = 40624,
  RegionImport = 40625,
  RegionEnable = 40626,
  RegionDisable = 40627,
  RegionDelete = 40628,
  RegionSelectAll = 40629,

  // Posted by the program to itself
  RefillTree = 40701,
  ResizeMainWindow = 40702,
};

}  // namespace varlo
