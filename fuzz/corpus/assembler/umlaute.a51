Zähler: NOP ; Überlauf ß
	DB 'äöü'
