// panels/InsDati_eventi.h - the handlers that the main panel's event table names. Each is given the control's index.
#pragma once

// Change of a text or of a choice.
void InsDati_TraveP(int);
void InsDati_GeoP(int i);
void InsDati_LatoTxt(int i);
void InsDati_Op_Tip(int i);
void InsDati_HFazzTxt(int i);
void InsDati_ChSI(int);
void InsDati_GolaTxt(int);
void InsDati_DTf(int i);
void InsDati_OptionNTir(int i);
void InsDati_Acc(int);
void InsDati_Cviti(int);
void InsDati_ComboCalcestruzzo(int);
void InsDati_ComboEsposizione(int);
void InsDati_TipoVer(int i);

// Load list: fields of row i, scroll bar, commands.
void InsDati_Lsa(int i);
void InsDati_TxtSN(int i);
void InsDati_TxtTy(int i);
void InsDati_TxtTz(int i);
void InsDati_TxtMt(int i);
void InsDati_TxtMy(int i);
void InsDati_TxtMz(int i);
void InsDati_CasCar(int i);
void InsDati_ScrollSa(int);
void InsDati_Lsa_Doppio(int i);
void InsDati_Singolo(int);
void InsDati_RimuoviSA(int);
void InsDati_RimuoviTSA(int);
void InsDati_Doppi(int);
void InsDati_MaxMin(int);

// Enter, or the focus leaves: the plan follows.
void InsDati_Ridisegna_Invio(int);

// Double click on a load field: its value through the suite's unit calculator.
void InsDati_TxtSN_Doppio(int i);
void InsDati_TxtTy_Doppio(int i);
void InsDati_TxtTz_Doppio(int i);
void InsDati_TxtMt_Doppio(int i);
void InsDati_TxtMy_Doppio(int i);
void InsDati_TxtMz_Doppio(int i);

// Commands that open another panel.
void InsDati_Opz(int);
void InsDati_DimTf(int);
void InsDati_PropMatButton(int);
void InsDati_ImpS3D(int);

// Commands.
void InsDati_Command1(int);
void InsDati_EsportaSollButt(int);
void InsDati_Verifica(int);
void InsDati_LegendaButt(int);
void InsDati_Chiudi(int);

// Texts of the status line that depend on the moment; "" none.
const char* InsDati_Lsa_Stato(int i);
const char* InsDati_Label30_Stato(int i);

// The window, the status line.
void InsDati_Mostrato();  // the first time: colours, plan, title of the search tool
void InsDati_Passa(const char* testo);
