Tab: DB 1,2,3
	DB 'Hallo',0
	DB "x"
	DW 1234h,Tab
	DW 'AB'
	DB 300
	DW
	DB
