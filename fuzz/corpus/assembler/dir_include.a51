#include teil.a51
#include leer.a51
#include crcr.a51
#include kette.a51
#include fehlt.a51
#include 'ohneende.a51'
#include TEIL.A51
#include fenster.a51
#include ..\teil.a51
#include C:\x.a51
#include /etc/passwd
#include
	NOP
