--  Made by ada/generate/generate.py; not to be changed by hand.
--  The names of the toolkit's resources and callback reasons.

pragma Ada_2012;

package Xmdef is

   subtype ArgName is String;

   FONTLIST_DEFAULT_TAG : constant String :=
     "FONTLIST_DEFAULT_TAG_STRING" & ASCII.NUL;

   Naccelerator : constant ArgName :=
     "accelerator" & ASCII.NUL;
   NacceleratorText : constant ArgName :=
     "acceleratorText" & ASCII.NUL;
   Naccelerators : constant ArgName :=
     "accelerators" & ASCII.NUL;
   NactivateCallback : constant ArgName :=
     "activateCallback" & ASCII.NUL;
   NadjustLast : constant ArgName :=
     "adjustLast" & ASCII.NUL;
   NadjustMargin : constant ArgName :=
     "adjustMargin" & ASCII.NUL;
   Nalignment : constant ArgName :=
     "alignment" & ASCII.NUL;
   NallowOverlap : constant ArgName :=
     "allowOverlap" & ASCII.NUL;
   NallowResize : constant ArgName :=
     "allowResize" & ASCII.NUL;
   NallowShellResize : constant ArgName :=
     "allowShellResize" & ASCII.NUL;
   NancestorSensitive : constant ArgName :=
     "ancestorSensitive" & ASCII.NUL;
   NapplyCallback : constant ArgName :=
     "applyCallback" & ASCII.NUL;
   NapplyLabelString : constant ArgName :=
     "applyLabelString" & ASCII.NUL;
   NarmCallback : constant ArgName :=
     "armCallback" & ASCII.NUL;
   NarmColor : constant ArgName :=
     "armColor" & ASCII.NUL;
   NarmPixmap : constant ArgName :=
     "armPixmap" & ASCII.NUL;
   NarrowDirection : constant ArgName :=
     "arrowDirection" & ASCII.NUL;
   NaudibleWarning : constant ArgName :=
     "audibleWarning" & ASCII.NUL;
   NautoShowCursorPosition : constant ArgName :=
     "autoShowCursorPosition" & ASCII.NUL;
   NautoUnmanage : constant ArgName :=
     "autoUnmanage" & ASCII.NUL;
   NautomaticSelection : constant ArgName :=
     "automaticSelection" & ASCII.NUL;
   Nbackground : constant ArgName :=
     "background" & ASCII.NUL;
   NbackgroundPixmap : constant ArgName :=
     "backgroundPixmap" & ASCII.NUL;
   NbaseHeight : constant ArgName :=
     "baseHeight" & ASCII.NUL;
   NbaseWidth : constant ArgName :=
     "baseWidth" & ASCII.NUL;
   NblinkRate : constant ArgName :=
     "blinkRate" & ASCII.NUL;
   NborderColor : constant ArgName :=
     "borderColor" & ASCII.NUL;
   NborderPixmap : constant ArgName :=
     "borderPixmap" & ASCII.NUL;
   NborderWidth : constant ArgName :=
     "borderWidth" & ASCII.NUL;
   NbottomAttachment : constant ArgName :=
     "bottomAttachment" & ASCII.NUL;
   NbottomOffset : constant ArgName :=
     "bottomOffset" & ASCII.NUL;
   NbottomPosition : constant ArgName :=
     "bottomPosition" & ASCII.NUL;
   NbottomShadowColor : constant ArgName :=
     "bottomShadowColor" & ASCII.NUL;
   NbottomShadowPixmap : constant ArgName :=
     "bottomShadowPixmap" & ASCII.NUL;
   NbottomWidget : constant ArgName :=
     "bottomWidget" & ASCII.NUL;
   NbrowseSelectionCallback : constant ArgName :=
     "browseSelectionCallback" & ASCII.NUL;
   NbuttonFontList : constant ArgName :=
     "buttonFontList" & ASCII.NUL;
   NcancelButton : constant ArgName :=
     "cancelButton" & ASCII.NUL;
   NcancelCallback : constant ArgName :=
     "cancelCallback" & ASCII.NUL;
   NcancelLabelString : constant ArgName :=
     "cancelLabelString" & ASCII.NUL;
   NcascadePixmap : constant ArgName :=
     "cascadePixmap" & ASCII.NUL;
   NcascadingCallback : constant ArgName :=
     "cascadingCallback" & ASCII.NUL;
   NchildHorizontalAlignment : constant ArgName :=
     "childHorizontalAlignment" & ASCII.NUL;
   NchildHorizontalSpacing : constant ArgName :=
     "childHorizontalSpacing" & ASCII.NUL;
   NchildPlacement : constant ArgName :=
     "childPlacement" & ASCII.NUL;
   NchildType : constant ArgName :=
     "childType" & ASCII.NUL;
   NchildVerticalAlignment : constant ArgName :=
     "childVerticalAlignment" & ASCII.NUL;
   Ncolormap : constant ArgName :=
     "colormap" & ASCII.NUL;
   Ncolumns : constant ArgName :=
     "columns" & ASCII.NUL;
   Ncommand : constant ArgName :=
     "command" & ASCII.NUL;
   NcommandChangedCallback : constant ArgName :=
     "commandChangedCallback" & ASCII.NUL;
   NcommandEnteredCallback : constant ArgName :=
     "commandEnteredCallback" & ASCII.NUL;
   NcommandWindow : constant ArgName :=
     "commandWindow" & ASCII.NUL;
   NcommandWindowLocation : constant ArgName :=
     "commandWindowLocation" & ASCII.NUL;
   NcursorPosition : constant ArgName :=
     "cursorPosition" & ASCII.NUL;
   NcursorPositionVisible : constant ArgName :=
     "cursorPositionVisible" & ASCII.NUL;
   NdecimalPoints : constant ArgName :=
     "decimalPoints" & ASCII.NUL;
   NdecrementCallback : constant ArgName :=
     "decrementCallback" & ASCII.NUL;
   NdefaultActionCallback : constant ArgName :=
     "defaultActionCallback" & ASCII.NUL;
   NdefaultButton : constant ArgName :=
     "defaultButton" & ASCII.NUL;
   NdefaultButtonShadowThickness : constant ArgName :=
     "defaultButtonShadowThickness" & ASCII.NUL;
   NdefaultButtonType : constant ArgName :=
     "defaultButtonType" & ASCII.NUL;
   NdefaultFontList : constant ArgName :=
     "defaultFontList" & ASCII.NUL;
   NdefaultPosition : constant ArgName :=
     "defaultPosition" & ASCII.NUL;
   NdeleteResponse : constant ArgName :=
     "deleteResponse" & ASCII.NUL;
   Ndepth : constant ArgName :=
     "depth" & ASCII.NUL;
   NdestroyCallback : constant ArgName :=
     "destroyCallback" & ASCII.NUL;
   NdialogStyle : constant ArgName :=
     "dialogStyle" & ASCII.NUL;
   NdialogTitle : constant ArgName :=
     "dialogTitle" & ASCII.NUL;
   NdialogType : constant ArgName :=
     "dialogType" & ASCII.NUL;
   NdirListItemCount : constant ArgName :=
     "dirListItemCount" & ASCII.NUL;
   NdirListItems : constant ArgName :=
     "dirListItems" & ASCII.NUL;
   NdirListLabelString : constant ArgName :=
     "dirListLabelString" & ASCII.NUL;
   NdirMask : constant ArgName :=
     "dirMask" & ASCII.NUL;
   NdirSearchProc : constant ArgName :=
     "dirSearchProc" & ASCII.NUL;
   NdirSpec : constant ArgName :=
     "dirSpec" & ASCII.NUL;
   Ndirectory : constant ArgName :=
     "directory" & ASCII.NUL;
   NdisarmCallback : constant ArgName :=
     "disarmCallback" & ASCII.NUL;
   NdoubleClickInterval : constant ArgName :=
     "doubleClickInterval" & ASCII.NUL;
   NdragCallback : constant ArgName :=
     "dragCallback" & ASCII.NUL;
   NeditMode : constant ArgName :=
     "editMode" & ASCII.NUL;
   Neditable : constant ArgName :=
     "editable" & ASCII.NUL;
   NentryAlignment : constant ArgName :=
     "entryAlignment" & ASCII.NUL;
   NentryBorder : constant ArgName :=
     "entryBorder" & ASCII.NUL;
   NentryCallback : constant ArgName :=
     "entryCallback" & ASCII.NUL;
   NentryClass : constant ArgName :=
     "entryClass" & ASCII.NUL;
   NentryVerticalAlignment : constant ArgName :=
     "entryVerticalAlignment" & ASCII.NUL;
   NexposeCallback : constant ArgName :=
     "exposeCallback" & ASCII.NUL;
   NextendedSelectionCallback : constant ArgName :=
     "extendedSelectionCallback" & ASCII.NUL;
   NfileListItemCount : constant ArgName :=
     "fileListItemCount" & ASCII.NUL;
   NfileListItems : constant ArgName :=
     "fileListItems" & ASCII.NUL;
   NfileListLabelString : constant ArgName :=
     "fileListLabelString" & ASCII.NUL;
   NfileSearchProc : constant ArgName :=
     "fileSearchProc" & ASCII.NUL;
   NfileTypeMask : constant ArgName :=
     "fileTypeMask" & ASCII.NUL;
   NfillOnArm : constant ArgName :=
     "fillOnArm" & ASCII.NUL;
   NfillOnSelect : constant ArgName :=
     "fillOnSelect" & ASCII.NUL;
   NfilterLabelString : constant ArgName :=
     "filterLabelString" & ASCII.NUL;
   NfocusCallback : constant ArgName :=
     "focusCallback" & ASCII.NUL;
   NfontList : constant ArgName :=
     "fontList" & ASCII.NUL;
   Nforeground : constant ArgName :=
     "foreground" & ASCII.NUL;
   NfractionBase : constant ArgName :=
     "fractionBase" & ASCII.NUL;
   NgainPrimaryCallback : constant ArgName :=
     "gainPrimaryCallback" & ASCII.NUL;
   Ngeometry : constant ArgName :=
     "geometry" & ASCII.NUL;
   Nheight : constant ArgName :=
     "height" & ASCII.NUL;
   NheightInc : constant ArgName :=
     "heightInc" & ASCII.NUL;
   NhelpCallback : constant ArgName :=
     "helpCallback" & ASCII.NUL;
   NhelpLabelString : constant ArgName :=
     "helpLabelString" & ASCII.NUL;
   NhighlightColor : constant ArgName :=
     "highlightColor" & ASCII.NUL;
   NhighlightOnEnter : constant ArgName :=
     "highlightOnEnter" & ASCII.NUL;
   NhighlightPixmap : constant ArgName :=
     "highlightPixmap" & ASCII.NUL;
   NhighlightThickness : constant ArgName :=
     "highlightThickness" & ASCII.NUL;
   NhistoryItemCount : constant ArgName :=
     "historyItemCount" & ASCII.NUL;
   NhistoryItems : constant ArgName :=
     "historyItems" & ASCII.NUL;
   NhistoryMaxItems : constant ArgName :=
     "historyMaxItems" & ASCII.NUL;
   NhistoryVisibleItemCount : constant ArgName :=
     "historyVisibleItemCount" & ASCII.NUL;
   NhorizontalScrollBar : constant ArgName :=
     "horizontalScrollBar" & ASCII.NUL;
   NhorizontalSpacing : constant ArgName :=
     "horizontalSpacing" & ASCII.NUL;
   NiconMask : constant ArgName :=
     "iconMask" & ASCII.NUL;
   NiconPixmap : constant ArgName :=
     "iconPixmap" & ASCII.NUL;
   NiconWindow : constant ArgName :=
     "iconWindow" & ASCII.NUL;
   NiconX : constant ArgName :=
     "iconX" & ASCII.NUL;
   NiconY : constant ArgName :=
     "iconY" & ASCII.NUL;
   Nincrement : constant ArgName :=
     "increment" & ASCII.NUL;
   NincrementCallback : constant ArgName :=
     "incrementCallback" & ASCII.NUL;
   NindicatorOn : constant ArgName :=
     "indicatorOn" & ASCII.NUL;
   NindicatorSize : constant ArgName :=
     "indicatorSize" & ASCII.NUL;
   NindicatorType : constant ArgName :=
     "indicatorType" & ASCII.NUL;
   NinitialDelay : constant ArgName :=
     "initialDelay" & ASCII.NUL;
   NinitialFocus : constant ArgName :=
     "initialFocus" & ASCII.NUL;
   NinitialResourcesPersistent : constant ArgName :=
     "initialResourcesPersistent" & ASCII.NUL;
   NinitialState : constant ArgName :=
     "initialState" & ASCII.NUL;
   Ninput : constant ArgName :=
     "input" & ASCII.NUL;
   NinputCallback : constant ArgName :=
     "inputCallback" & ASCII.NUL;
   NinputMethod : constant ArgName :=
     "inputMethod" & ASCII.NUL;
   NinsertPosition : constant ArgName :=
     "insertPosition" & ASCII.NUL;
   NisAligned : constant ArgName :=
     "isAligned" & ASCII.NUL;
   NisHomogeneous : constant ArgName :=
     "isHomogeneous" & ASCII.NUL;
   NitemCount : constant ArgName :=
     "itemCount" & ASCII.NUL;
   Nitems : constant ArgName :=
     "items" & ASCII.NUL;
   NkeyboardFocusPolicy : constant ArgName :=
     "keyboardFocusPolicy" & ASCII.NUL;
   NlabelFontList : constant ArgName :=
     "labelFontList" & ASCII.NUL;
   NlabelInsensitivePixmap : constant ArgName :=
     "labelInsensitivePixmap" & ASCII.NUL;
   NlabelPixmap : constant ArgName :=
     "labelPixmap" & ASCII.NUL;
   NlabelString : constant ArgName :=
     "labelString" & ASCII.NUL;
   NlabelType : constant ArgName :=
     "labelType" & ASCII.NUL;
   NleftAttachment : constant ArgName :=
     "leftAttachment" & ASCII.NUL;
   NleftOffset : constant ArgName :=
     "leftOffset" & ASCII.NUL;
   NleftPosition : constant ArgName :=
     "leftPosition" & ASCII.NUL;
   NleftWidget : constant ArgName :=
     "leftWidget" & ASCII.NUL;
   NlistItemCount : constant ArgName :=
     "listItemCount" & ASCII.NUL;
   NlistItems : constant ArgName :=
     "listItems" & ASCII.NUL;
   NlistLabelString : constant ArgName :=
     "listLabelString" & ASCII.NUL;
   NlistMarginHeight : constant ArgName :=
     "listMarginHeight" & ASCII.NUL;
   NlistMarginWidth : constant ArgName :=
     "listMarginWidth" & ASCII.NUL;
   NlistSizePolicy : constant ArgName :=
     "listSizePolicy" & ASCII.NUL;
   NlistSpacing : constant ArgName :=
     "listSpacing" & ASCII.NUL;
   NlistUpdated : constant ArgName :=
     "listUpdated" & ASCII.NUL;
   NlistVisibleItemCount : constant ArgName :=
     "listVisibleItemCount" & ASCII.NUL;
   NlosePrimaryCallback : constant ArgName :=
     "losePrimaryCallback" & ASCII.NUL;
   NlosingFocusCallback : constant ArgName :=
     "losingFocusCallback" & ASCII.NUL;
   NmainWindowMarginHeight : constant ArgName :=
     "mainWindowMarginHeight" & ASCII.NUL;
   NmainWindowMarginWidth : constant ArgName :=
     "mainWindowMarginWidth" & ASCII.NUL;
   NmapCallback : constant ArgName :=
     "mapCallback" & ASCII.NUL;
   NmappedWhenManaged : constant ArgName :=
     "mappedWhenManaged" & ASCII.NUL;
   NmappingDelay : constant ArgName :=
     "mappingDelay" & ASCII.NUL;
   Nmargin : constant ArgName :=
     "margin" & ASCII.NUL;
   NmarginBottom : constant ArgName :=
     "marginBottom" & ASCII.NUL;
   NmarginHeight : constant ArgName :=
     "marginHeight" & ASCII.NUL;
   NmarginLeft : constant ArgName :=
     "marginLeft" & ASCII.NUL;
   NmarginRight : constant ArgName :=
     "marginRight" & ASCII.NUL;
   NmarginTop : constant ArgName :=
     "marginTop" & ASCII.NUL;
   NmarginWidth : constant ArgName :=
     "marginWidth" & ASCII.NUL;
   NmaxAspectX : constant ArgName :=
     "maxAspectX" & ASCII.NUL;
   NmaxAspectY : constant ArgName :=
     "maxAspectY" & ASCII.NUL;
   NmaxHeight : constant ArgName :=
     "maxHeight" & ASCII.NUL;
   NmaxLength : constant ArgName :=
     "maxLength" & ASCII.NUL;
   NmaxWidth : constant ArgName :=
     "maxWidth" & ASCII.NUL;
   Nmaximum : constant ArgName :=
     "maximum" & ASCII.NUL;
   NmenuAccelerator : constant ArgName :=
     "menuAccelerator" & ASCII.NUL;
   NmenuBar : constant ArgName :=
     "menuBar" & ASCII.NUL;
   NmenuHelpWidget : constant ArgName :=
     "menuHelpWidget" & ASCII.NUL;
   NmenuHistory : constant ArgName :=
     "menuHistory" & ASCII.NUL;
   NmenuPost : constant ArgName :=
     "menuPost" & ASCII.NUL;
   NmessageAlignment : constant ArgName :=
     "messageAlignment" & ASCII.NUL;
   NmessageString : constant ArgName :=
     "messageString" & ASCII.NUL;
   NmessageWindow : constant ArgName :=
     "messageWindow" & ASCII.NUL;
   NminAspectX : constant ArgName :=
     "minAspectX" & ASCII.NUL;
   NminAspectY : constant ArgName :=
     "minAspectY" & ASCII.NUL;
   NminHeight : constant ArgName :=
     "minHeight" & ASCII.NUL;
   NminWidth : constant ArgName :=
     "minWidth" & ASCII.NUL;
   NminimizeButtons : constant ArgName :=
     "minimizeButtons" & ASCII.NUL;
   Nminimum : constant ArgName :=
     "minimum" & ASCII.NUL;
   Nmnemonic : constant ArgName :=
     "mnemonic" & ASCII.NUL;
   NmnemonicCharSet : constant ArgName :=
     "mnemonicCharSet" & ASCII.NUL;
   NmodifyVerifyCallback : constant ArgName :=
     "modifyVerifyCallback" & ASCII.NUL;
   NmodifyVerifyCallbackWcs : constant ArgName :=
     "modifyVerifyCallbackWcs" & ASCII.NUL;
   NmotionVerifyCallback : constant ArgName :=
     "motionVerifyCallback" & ASCII.NUL;
   NmultiClick : constant ArgName :=
     "multiClick" & ASCII.NUL;
   NmultipleSelectionCallback : constant ArgName :=
     "multipleSelectionCallback" & ASCII.NUL;
   NmustMatch : constant ArgName :=
     "mustMatch" & ASCII.NUL;
   NmwmDecorations : constant ArgName :=
     "mwmDecorations" & ASCII.NUL;
   NmwmFunctions : constant ArgName :=
     "mwmFunctions" & ASCII.NUL;
   NmwmInputMode : constant ArgName :=
     "mwmInputMode" & ASCII.NUL;
   NmwmMenu : constant ArgName :=
     "mwmMenu" & ASCII.NUL;
   NnavigationType : constant ArgName :=
     "navigationType" & ASCII.NUL;
   NnoMatchCallback : constant ArgName :=
     "noMatchCallback" & ASCII.NUL;
   NnoMatchString : constant ArgName :=
     "noMatchString" & ASCII.NUL;
   NnoResize : constant ArgName :=
     "noResize" & ASCII.NUL;
   NnumColumns : constant ArgName :=
     "numColumns" & ASCII.NUL;
   NokCallback : constant ArgName :=
     "okCallback" & ASCII.NUL;
   NokLabelString : constant ArgName :=
     "okLabelString" & ASCII.NUL;
   Norientation : constant ArgName :=
     "orientation" & ASCII.NUL;
   NoverrideRedirect : constant ArgName :=
     "overrideRedirect" & ASCII.NUL;
   Npacking : constant ArgName :=
     "packing" & ASCII.NUL;
   NpageDecrementCallback : constant ArgName :=
     "pageDecrementCallback" & ASCII.NUL;
   NpageIncrement : constant ArgName :=
     "pageIncrement" & ASCII.NUL;
   NpageIncrementCallback : constant ArgName :=
     "pageIncrementCallback" & ASCII.NUL;
   NpaneMaximum : constant ArgName :=
     "paneMaximum" & ASCII.NUL;
   NpaneMinimum : constant ArgName :=
     "paneMinimum" & ASCII.NUL;
   Npattern : constant ArgName :=
     "pattern" & ASCII.NUL;
   NpendingDelete : constant ArgName :=
     "pendingDelete" & ASCII.NUL;
   NpopdownCallback : constant ArgName :=
     "popdownCallback" & ASCII.NUL;
   NpopupCallback : constant ArgName :=
     "popupCallback" & ASCII.NUL;
   NpopupEnabled : constant ArgName :=
     "popupEnabled" & ASCII.NUL;
   NpositionIndex : constant ArgName :=
     "positionIndex" & ASCII.NUL;
   NpostFromCount : constant ArgName :=
     "postFromCount" & ASCII.NUL;
   NpostFromList : constant ArgName :=
     "postFromList" & ASCII.NUL;
   NpreeditType : constant ArgName :=
     "preeditType" & ASCII.NUL;
   NprocessingDirection : constant ArgName :=
     "processingDirection" & ASCII.NUL;
   NpromptString : constant ArgName :=
     "promptString" & ASCII.NUL;
   NpushButtonEnabled : constant ArgName :=
     "pushButtonEnabled" & ASCII.NUL;
   NqualifySearchDataProc : constant ArgName :=
     "qualifySearchDataProc" & ASCII.NUL;
   NradioAlwaysOne : constant ArgName :=
     "radioAlwaysOne" & ASCII.NUL;
   NradioBehavior : constant ArgName :=
     "radioBehavior" & ASCII.NUL;
   NrecomputeSize : constant ArgName :=
     "recomputeSize" & ASCII.NUL;
   NrefigureMode : constant ArgName :=
     "refigureMode" & ASCII.NUL;
   NrepeatDelay : constant ArgName :=
     "repeatDelay" & ASCII.NUL;
   Nresizable : constant ArgName :=
     "resizable" & ASCII.NUL;
   NresizeCallback : constant ArgName :=
     "resizeCallback" & ASCII.NUL;
   NresizeHeight : constant ArgName :=
     "resizeHeight" & ASCII.NUL;
   NresizePolicy : constant ArgName :=
     "resizePolicy" & ASCII.NUL;
   NresizeWidth : constant ArgName :=
     "resizeWidth" & ASCII.NUL;
   NrightAttachment : constant ArgName :=
     "rightAttachment" & ASCII.NUL;
   NrightOffset : constant ArgName :=
     "rightOffset" & ASCII.NUL;
   NrightPosition : constant ArgName :=
     "rightPosition" & ASCII.NUL;
   NrightWidget : constant ArgName :=
     "rightWidget" & ASCII.NUL;
   NrowColumnType : constant ArgName :=
     "rowColumnType" & ASCII.NUL;
   Nrows : constant ArgName :=
     "rows" & ASCII.NUL;
   NrubberPositioning : constant ArgName :=
     "rubberPositioning" & ASCII.NUL;
   NsashHeight : constant ArgName :=
     "sashHeight" & ASCII.NUL;
   NsashIndent : constant ArgName :=
     "sashIndent" & ASCII.NUL;
   NsashShadowThickness : constant ArgName :=
     "sashShadowThickness" & ASCII.NUL;
   NsashWidth : constant ArgName :=
     "sashWidth" & ASCII.NUL;
   NsaveUnder : constant ArgName :=
     "saveUnder" & ASCII.NUL;
   NscaleHeight : constant ArgName :=
     "scaleHeight" & ASCII.NUL;
   NscaleMultiple : constant ArgName :=
     "scaleMultiple" & ASCII.NUL;
   NscaleWidth : constant ArgName :=
     "scaleWidth" & ASCII.NUL;
   Nscreen : constant ArgName :=
     "screen" & ASCII.NUL;
   NscrollBarDisplayPolicy : constant ArgName :=
     "scrollBarDisplayPolicy" & ASCII.NUL;
   NscrollBarPlacement : constant ArgName :=
     "scrollBarPlacement" & ASCII.NUL;
   NscrollHorizontal : constant ArgName :=
     "scrollHorizontal" & ASCII.NUL;
   NscrollLeftSide : constant ArgName :=
     "scrollLeftSide" & ASCII.NUL;
   NscrollTopSide : constant ArgName :=
     "scrollTopSide" & ASCII.NUL;
   NscrollVertical : constant ArgName :=
     "scrollVertical" & ASCII.NUL;
   NscrolledWindowMarginHeight : constant ArgName :=
     "scrolledWindowMarginHeight" & ASCII.NUL;
   NscrolledWindowMarginWidth : constant ArgName :=
     "scrolledWindowMarginWidth" & ASCII.NUL;
   NscrollingPolicy : constant ArgName :=
     "scrollingPolicy" & ASCII.NUL;
   NselectColor : constant ArgName :=
     "selectColor" & ASCII.NUL;
   NselectInsensitivePixmap : constant ArgName :=
     "selectInsensitivePixmap" & ASCII.NUL;
   NselectPixmap : constant ArgName :=
     "selectPixmap" & ASCII.NUL;
   NselectThreshold : constant ArgName :=
     "selectThreshold" & ASCII.NUL;
   NselectedItemCount : constant ArgName :=
     "selectedItemCount" & ASCII.NUL;
   NselectedItems : constant ArgName :=
     "selectedItems" & ASCII.NUL;
   NselectionArray : constant ArgName :=
     "selectionArray" & ASCII.NUL;
   NselectionArrayCount : constant ArgName :=
     "selectionArrayCount" & ASCII.NUL;
   NselectionLabelString : constant ArgName :=
     "selectionLabelString" & ASCII.NUL;
   NselectionPolicy : constant ArgName :=
     "selectionPolicy" & ASCII.NUL;
   Nsensitive : constant ArgName :=
     "sensitive" & ASCII.NUL;
   NseparatorOn : constant ArgName :=
     "separatorOn" & ASCII.NUL;
   NseparatorType : constant ArgName :=
     "separatorType" & ASCII.NUL;
   Nset : constant ArgName :=
     "set" & ASCII.NUL;
   NshadowThickness : constant ArgName :=
     "shadowThickness" & ASCII.NUL;
   NshadowType : constant ArgName :=
     "shadowType" & ASCII.NUL;
   NshellUnitType : constant ArgName :=
     "shellUnitType" & ASCII.NUL;
   NshowArrows : constant ArgName :=
     "showArrows" & ASCII.NUL;
   NshowAsDefault : constant ArgName :=
     "showAsDefault" & ASCII.NUL;
   NshowSeparator : constant ArgName :=
     "showSeparator" & ASCII.NUL;
   NshowValue : constant ArgName :=
     "showValue" & ASCII.NUL;
   NsimpleCallback : constant ArgName :=
     "simpleCallback" & ASCII.NUL;
   NsingleSelectionCallback : constant ArgName :=
     "singleSelectionCallback" & ASCII.NUL;
   NskipAdjust : constant ArgName :=
     "skipAdjust" & ASCII.NUL;
   NsliderSize : constant ArgName :=
     "sliderSize" & ASCII.NUL;
   Nsource : constant ArgName :=
     "source" & ASCII.NUL;
   Nspacing : constant ArgName :=
     "spacing" & ASCII.NUL;
   NstringDirection : constant ArgName :=
     "stringDirection" & ASCII.NUL;
   NsubMenuId : constant ArgName :=
     "subMenuId" & ASCII.NUL;
   NsymbolPixmap : constant ArgName :=
     "symbolPixmap" & ASCII.NUL;
   NtearOffMenuActivateCallback : constant ArgName :=
     "tearOffMenuActivateCallback" & ASCII.NUL;
   NtearOffMenuDeactivateCallback : constant ArgName :=
     "tearOffMenuDeactivateCallback" & ASCII.NUL;
   NtearOffModel : constant ArgName :=
     "tearOffModel" & ASCII.NUL;
   NtextAccelerators : constant ArgName :=
     "textAccelerators" & ASCII.NUL;
   NtextColumns : constant ArgName :=
     "textColumns" & ASCII.NUL;
   NtextFontList : constant ArgName :=
     "textFontList" & ASCII.NUL;
   NtextString : constant ArgName :=
     "textString" & ASCII.NUL;
   NtextTranslations : constant ArgName :=
     "textTranslations" & ASCII.NUL;
   Ntitle : constant ArgName :=
     "title" & ASCII.NUL;
   NtitleEncoding : constant ArgName :=
     "titleEncoding" & ASCII.NUL;
   NtitleString : constant ArgName :=
     "titleString" & ASCII.NUL;
   NtoBottomCallback : constant ArgName :=
     "toBottomCallback" & ASCII.NUL;
   NtoTopCallback : constant ArgName :=
     "toTopCallback" & ASCII.NUL;
   NtopAttachment : constant ArgName :=
     "topAttachment" & ASCII.NUL;
   NtopCharacter : constant ArgName :=
     "topCharacter" & ASCII.NUL;
   NtopItemPosition : constant ArgName :=
     "topItemPosition" & ASCII.NUL;
   NtopOffset : constant ArgName :=
     "topOffset" & ASCII.NUL;
   NtopPosition : constant ArgName :=
     "topPosition" & ASCII.NUL;
   NtopShadowColor : constant ArgName :=
     "topShadowColor" & ASCII.NUL;
   NtopShadowPixmap : constant ArgName :=
     "topShadowPixmap" & ASCII.NUL;
   NtopWidget : constant ArgName :=
     "topWidget" & ASCII.NUL;
   Ntransient : constant ArgName :=
     "transient" & ASCII.NUL;
   NtransientFor : constant ArgName :=
     "transientFor" & ASCII.NUL;
   Ntranslations : constant ArgName :=
     "translations" & ASCII.NUL;
   NtraversalOn : constant ArgName :=
     "traversalOn" & ASCII.NUL;
   NtraverseObscuredCallback : constant ArgName :=
     "traverseObscuredCallback" & ASCII.NUL;
   NtroughColor : constant ArgName :=
     "troughColor" & ASCII.NUL;
   NunitType : constant ArgName :=
     "unitType" & ASCII.NUL;
   NunmapCallback : constant ArgName :=
     "unmapCallback" & ASCII.NUL;
   NunpostBehavior : constant ArgName :=
     "unpostBehavior" & ASCII.NUL;
   NuseAsyncGeometry : constant ArgName :=
     "useAsyncGeometry" & ASCII.NUL;
   NuserData : constant ArgName :=
     "userData" & ASCII.NUL;
   Nvalue : constant ArgName :=
     "value" & ASCII.NUL;
   NvalueChangedCallback : constant ArgName :=
     "valueChangedCallback" & ASCII.NUL;
   NvalueWcs : constant ArgName :=
     "valueWcs" & ASCII.NUL;
   NverifyBell : constant ArgName :=
     "verifyBell" & ASCII.NUL;
   NverticalScrollBar : constant ArgName :=
     "verticalScrollBar" & ASCII.NUL;
   NverticalSpacing : constant ArgName :=
     "verticalSpacing" & ASCII.NUL;
   NvisibleItemCount : constant ArgName :=
     "visibleItemCount" & ASCII.NUL;
   NvisibleWhenOff : constant ArgName :=
     "visibleWhenOff" & ASCII.NUL;
   Nvisual : constant ArgName :=
     "visual" & ASCII.NUL;
   NvisualPolicy : constant ArgName :=
     "visualPolicy" & ASCII.NUL;
   NwaitForWm : constant ArgName :=
     "waitforwm" & ASCII.NUL;
   NwhichButton : constant ArgName :=
     "whichButton" & ASCII.NUL;
   Nwidth : constant ArgName :=
     "width" & ASCII.NUL;
   NwidthInc : constant ArgName :=
     "widthInc" & ASCII.NUL;
   NwinGravity : constant ArgName :=
     "winGravity" & ASCII.NUL;
   NwindowGroup : constant ArgName :=
     "windowGroup" & ASCII.NUL;
   NwmTimeout : constant ArgName :=
     "wmTimeout" & ASCII.NUL;
   NwordWrap : constant ArgName :=
     "wordWrap" & ASCII.NUL;
   NworkWindow : constant ArgName :=
     "workWindow" & ASCII.NUL;
   Nx : constant ArgName :=
     "x" & ASCII.NUL;
   Ny : constant ArgName :=
     "y" & ASCII.NUL;

end Xmdef;
