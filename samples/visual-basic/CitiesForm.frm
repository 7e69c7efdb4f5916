VERSION 5.00
Object = "{5BDC0D33-3317-4CD2-B5D2-9324DE4D043F}#1.0#0"; "LumtexListView.ocx"
Begin VB.Form CitiesForm
   Caption         =   "Cities"
   ClientHeight    =   3600
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   5400
   LinkTopic       =   "CitiesForm"
   ScaleHeight     =   3600
   ScaleWidth      =   5400
   StartUpPosition =   3  'Windows Default
   Begin VB.TextBox Pattern
      Height          =   315
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   3735
   End
   Begin VB.CommandButton FindNext
      Caption         =   "Find next"
      Default         =   -1  'True
      Height          =   315
      Left            =   3960
      TabIndex        =   1
      Top             =   120
      Width           =   1335
   End
   Begin LumtexListView.lmListView Cities
      Height          =   2895
      Left            =   120
      TabIndex        =   2
      Top             =   600
      Width           =   5175
      _ExtentX        =   9128
      _ExtentY        =   5106
      RowsDynamic     =   0   'False
      RowHeight       =   300
      MultiSelect     =   -1  'True
      GridLines       =   -1  'True
   End
End
Attribute VB_Name = "CitiesForm"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Rows, columns and cells count from 1; ListIndex and TopIndex count from 0.

Private Sub Form_Load()
    Dim Row As Variant

    Cities.AutoRedraw = False
    Cities.Style = cCheckBoxes
    Cities.AllowEdit = True
    Cities.ColumnsAdd "City", , , , cColumnLeft, 2400, True
    Cities.ColumnsAdd "Inhabitants", , , , cColumnRight, 1500, False
    Cities.ColumnCheckBoxes(1) = True
    For Each Row In Array("Lisbon;545923", "Oslo;709037", "Quito;1763275", "Hanoi;8053663")
        Cities.RowsAdd , ";", CStr(Row)
        Cities.ItemAlignment(Cities.RowsCount, 2) = cItemRight
    Next
    Cities.Sort 1, cAscending, cSortText
    Cities.AutoRedraw = True
    Cities.Redraw
End Sub

Private Sub Form_Unload(Cancel As Integer)
    Cities.ContentSave App.Path & "\cities.lst", True
End Sub

' A pattern as Like knows them: "*o" finds what ends in o. Each search goes on behind the last find. The first
' column is "1,": a lone number needs its comma.
Private Sub FindNext_Click()
    Dim Found As FindResults

    Found = Cities.FindItem(Pattern.Text, cFindContinue, cFindText, "1,")
    If Found.FindSuccessful Then
        Cities.RowIndex = Found.FindRow
    Else
        Beep
    End If
End Sub

' The list itself sorts as text, after this event and where AllowSorting is on. So the host sorts the numbers.
Private Sub Cities_ColumnClick(Column As Long)
    If Column = 2 Then Cities.Sort Column, cDescending, cSortNumeric
End Sub

' Lisbon keeps its mark as it is.
Private Sub Cities_ItemCheck(ByVal Row As Long, ByVal Column As Long, ByVal NewValue As Boolean, Cancel As Boolean)
    Cancel = (Cities.ItemText(Row, 1) = "Lisbon")
End Sub

Private Sub Cities_ItemDblClick(ByVal Row As Long, ByVal Column As Long)
    Cities.SetEdit Row, Column
End Sub

Private Sub Cities_ItemChanged(ByVal Row As Long, ByVal Column As Long, ByVal NewValue As String)
    Caption = "Cities (changed: " & NewValue & ")"
End Sub

Private Sub Cities_ListViewError(ByVal eSub As String, ByVal eNumber As Long, ByVal eDescription As String)
    Debug.Print eSub & ": " & eDescription & " (" & eNumber & ")"
End Sub
