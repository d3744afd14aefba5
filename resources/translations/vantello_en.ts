<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="en_US" sourcelanguage="it_IT">
    <context>
        <name>Vantello</name>
        <message>
            <source>Abbigliamento</source>
            <translation>Clothing</translation>
        </message>
        <message>
            <source>Abbonamenti</source>
            <translation>Subscriptions</translation>
        </message>
        <message>
            <source>Altre entrate</source>
            <translation>Other income</translation>
        </message>
        <message>
            <source>Altre uscite</source>
            <translation>Other expenses</translation>
        </message>
        <message>
            <source>Anno-mese-giorno</source>
            <translation>Year-month-day</translation>
        </message>
        <message>
            <source>Benvenuto in Vantello</source>
            <translation>Welcome to Vantello</translation>
        </message>
        <message>
            <source>Bollette</source>
            <translation>Bills</translation>
        </message>
        <message>
            <source>C'è già una persona con questo nome.</source>
            <translation>There is already a person with this name.</translation>
        </message>
        <message>
            <source>Cambio non disponibile: la BCE pubblica gli ultimi 90 giorni e serve internet. Scrivilo a mano.</source>
            <translation>Exchange rate not available: the ECB publishes the last 90 days and an internet connection is needed. Type it by hand.</translation>
        </message>
        <message>
            <source>Casa</source>
            <translation>Home</translation>
        </message>
        <message>
            <source>Categoria</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Conto principale</source>
            <translation>Main account</translation>
        </message>
        <message>
            <source>Data</source>
            <translation>Date</translation>
        </message>
        <message>
            <source>Data non leggibile: «{text}»</source>
            <translation>Unreadable date: “{text}”</translation>
        </message>
        <message>
            <source>Data non valida: {text}</source>
            <translation>Invalid date: {text}</translation>
        </message>
        <message>
            <source>Dati non validi: era atteso un oggetto JSON.</source>
            <translation>Invalid data: a JSON object was expected.</translation>
        </message>
        <message>
            <source>Dati non validi: la chiave «{key}» {problem}.</source>
            <translation>Invalid data: the key “{key}” {problem}.</translation>
        </message>
        <message>
            <source>Due colonne: entrate e uscite</source>
            <translation>Two columns: income and expenses</translation>
        </message>
        <message>
            <source>Entrata</source>
            <translation>Income</translation>
        </message>
        <message>
            <source>Esiste già un conto con questo nome.</source>
            <translation>An account with this name already exists.</translation>
        </message>
        <message>
            <source>Esiste già una categoria con questo nome.</source>
            <translation>A category with this name already exists.</translation>
        </message>
        <message>
            <source>Frequenza sconosciuta: {text}</source>
            <translation>Unknown frequency: {text}</translation>
        </message>
        <message>
            <source>Giorno/mese/anno</source>
            <translation>Day/month/year</translation>
        </message>
        <message>
            <source>Giroconto</source>
            <translation>Transfer</translation>
        </message>
        <message>
            <source>Gli hai restituito</source>
            <translation>You paid back</translation>
        </message>
        <message>
            <source>Gli ho restituito</source>
            <translation>I paid back</translation>
        </message>
        <message>
            <source>Ha pagato per me</source>
            <translation>Paid for me</translation>
        </message>
        <message>
            <source>Ha pagato per te</source>
            <translation>Paid for you</translation>
        </message>
        <message>
            <source>I tuoi dati restano su questo computer.</source>
            <translation>Your data stays on this computer.</translation>
        </message>
        <message>
            <source>Identificativo non valido: {text}</source>
            <translation>Invalid identifier: {text}</translation>
        </message>
        <message>
            <source>Il budget si imposta solo sulle categorie di uscita.</source>
            <translation>Budgets can only be set on expense categories.</translation>
        </message>
        <message>
            <source>Il conto non esiste.</source>
            <translation>The account does not exist.</translation>
        </message>
        <message>
            <source>Il conto principale non si può eliminare.</source>
            <translation>The main account cannot be deleted.</translation>
        </message>
        <message>
            <source>Il file dei cambi non contiene nessun cambio della BCE.</source>
            <translation>The exchange-rate file contains no ECB rates.</translation>
        </message>
        <message>
            <source>Il file dei movimenti viene da una versione più recente di Vantello (formato {n}).</source>
            <translation>The movements file comes from a newer version of Vantello (format {n}).</translation>
        </message>
        <message>
            <source>Il file non è un JSON valido (riga {line}, colonna {column}).</source>
            <translation>The file is not valid JSON (line {line}, column {column}).</translation>
        </message>
        <message>
            <source>Il file non è un JSON valido.</source>
            <translation>The file is not valid JSON.</translation>
        </message>
        <message>
            <source>Il movimento non esiste più.</source>
            <translation>The movement no longer exists.</translation>
        </message>
        <message>
            <source>Il nome del conto è troppo lungo (massimo 40 caratteri).</source>
            <translation>The account name is too long (40 characters at most).</translation>
        </message>
        <message>
            <source>Il nome della categoria è troppo lungo (massimo 40 caratteri).</source>
            <translation>The category name is too long (40 characters at most).</translation>
        </message>
        <message>
            <source>Il server dei cambi della BCE non ha risposto in tempo.</source>
            <translation>The ECB exchange-rate server did not answer in time.</translation>
        </message>
        <message>
            <source>Il server dei cambi ha risposto con l'errore HTTP {status}.</source>
            <translation>The exchange-rate server answered with HTTP error {status}.</translation>
        </message>
        <message>
            <source>Importo</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Importo assente o uguale a zero.</source>
            <translation>Amount missing or zero.</translation>
        </message>
        <message>
            <source>Importo non leggibile: «{text}»</source>
            <translation>Unreadable amount: “{text}”</translation>
        </message>
        <message>
            <source>Importo non valido: {text}</source>
            <translation>Invalid amount: {text}</translation>
        </message>
        <message>
            <source>Indennità di disoccupazione</source>
            <translation>Unemployment benefit</translation>
        </message>
        <message>
            <source>L'importo deve essere maggiore di zero.</source>
            <translation>The amount must be greater than zero.</translation>
        </message>
        <message>
            <source>La categoria non corrisponde al tipo di movimento.</source>
            <translation>The category does not match the kind of movement.</translation>
        </message>
        <message>
            <source>La categoria «{id}» non esiste.</source>
            <translation>The category “{id}” does not exist.</translation>
        </message>
        <message>
            <source>La fine della ricorrenza deve venire dopo l'inizio.</source>
            <translation>The end of the recurrence must come after its start.</translation>
        </message>
        <message>
            <source>La persona non esiste più.</source>
            <translation>The person no longer exists.</translation>
        </message>
        <message>
            <source>Le categorie predefinite non si possono modificare.</source>
            <translation>Built-in categories cannot be changed.</translation>
        </message>
        <message>
            <source>Le quote degli altri non possono superare la spesa.</source>
            <translation>The others' shares cannot exceed the expense.</translation>
        </message>
        <message>
            <source>Mese/giorno/anno</source>
            <translation>Month/day/year</translation>
        </message>
        <message>
            <source>Mi ha restituito</source>
            <translation>Paid me back</translation>
        </message>
        <message>
            <source>Non riesco a leggere «{file}»: {reason}.</source>
            <translation>I cannot read “{file}”: {reason}.</translation>
        </message>
        <message>
            <source>Non riesco a leggere «{file}»…</source>
            <translation>I cannot read “{file}”…</translation>
        </message>
        <message>
            <source>Non riesco a scrivere «{file}»: {reason}.</source>
            <translation>I cannot write “{file}”: {reason}.</translation>
        </message>
        <message>
            <source>Non riesco a spostare «{file}»: {reason}.</source>
            <translation>I cannot move “{file}”: {reason}.</translation>
        </message>
        <message>
            <source>Non trovo la cartella dei dati.</source>
            <translation>I cannot find the data folder.</translation>
        </message>
        <message>
            <source>Non è stato possibile scaricare i cambi della BCE.</source>
            <translation>The ECB exchange rates could not be downloaded.</translation>
        </message>
        <message>
            <source>Nota</source>
            <translation>Note</translation>
        </message>
        <message>
            <source>Periodo di ricerca sconosciuto: {text}</source>
            <translation>Unknown search period: {text}</translation>
        </message>
        <message>
            <source>Questo movimento esiste già.</source>
            <translation>This movement already exists.</translation>
        </message>
        <message>
            <source>Ristoranti e bar</source>
            <translation>Restaurants and bars</translation>
        </message>
        <message>
            <source>Salute</source>
            <translation>Health</translation>
        </message>
        <message>
            <source>Scegli il conto di destinazione del giroconto.</source>
            <translation>Choose the destination account of the transfer.</translation>
        </message>
        <message>
            <source>Scegli la colonna dell'importo.</source>
            <translation>Choose the amount column.</translation>
        </message>
        <message>
            <source>Scegli la colonna della data.</source>
            <translation>Choose the date column.</translation>
        </message>
        <message>
            <source>Scegli le colonne di entrate e uscite.</source>
            <translation>Choose the income and expense columns.</translation>
        </message>
        <message>
            <source>Scrivi il testo da cercare nella descrizione.</source>
            <translation>Write the text to look for in the description.</translation>
        </message>
        <message>
            <source>Scrivi un nome per il conto.</source>
            <translation>Write a name for the account.</translation>
        </message>
        <message>
            <source>Scrivi un nome per la categoria.</source>
            <translation>Write a name for the category.</translation>
        </message>
        <message>
            <source>Scrivi un nome.</source>
            <translation>Write a name.</translation>
        </message>
        <message>
            <source>Si possono dividere solo le uscite.</source>
            <translation>Only expenses can be shared.</translation>
        </message>
        <message>
            <source>Spesa alimentare</source>
            <translation>Groceries</translation>
        </message>
        <message>
            <source>Stipendio</source>
            <translation>Salary</translation>
        </message>
        <message>
            <source>Svago</source>
            <translation>Leisure</translation>
        </message>
        <message>
            <source>Ti ha restituito</source>
            <translation>Paid you back</translation>
        </message>
        <message>
            <source>Tipo</source>
            <translation>Type</translation>
        </message>
        <message>
            <source>Tipo di movimento sconosciuto: {text}</source>
            <translation>Unknown kind of movement: {text}</translation>
        </message>
        <message>
            <source>Tipo di voce condivisa sconosciuto: {text}</source>
            <translation>Unknown kind of shared entry: {text}</translation>
        </message>
        <message>
            <source>Trasporti</source>
            <translation>Transport</translation>
        </message>
        <message>
            <source>Un altro programma sta modificando questi dati. Chiudilo e riprova.</source>
            <translation>Another program is changing this data. Close it and try again.</translation>
        </message>
        <message>
            <source>Un giroconto va tra due conti diversi.</source>
            <translation>A transfer goes between two different accounts.</translation>
        </message>
        <message>
            <source>Una colonna, con il meno per le uscite</source>
            <translation>One column, with a minus for expenses</translation>
        </message>
        <message>
            <source>Uscita</source>
            <translation>Expense</translation>
        </message>
        <message>
            <source>ha un valore del tipo sbagliato</source>
            <translation>has a value of the wrong type</translation>
        </message>
        <message>
            <source>manca</source>
            <translation>is missing</translation>
        </message>
        <message>
            <source>«{file}» non contiene righe da importare.</source>
            <translation>“{file}” contains no rows to import.</translation>
        </message>
        <message>
            <source>Movimenti</source>
            <translation>Movements</translation>
        </message>
        <message>
            <source>Categorie personalizzate</source>
            <translation>Custom categories</translation>
        </message>
        <message>
            <source>Budget</source>
            <translation>Budgets</translation>
        </message>
        <message>
            <source>Conti</source>
            <translation>Accounts</translation>
        </message>
        <message>
            <source>Movimenti ricorrenti</source>
            <translation>Recurring movements</translation>
        </message>
        <message>
            <source>Regole di categoria</source>
            <translation>Category rules</translation>
        </message>
        <message>
            <source>Periodi senza lavoro</source>
            <translation>Periods without work</translation>
        </message>
        <message>
            <source>Ricerche salvate</source>
            <translation>Saved searches</translation>
        </message>
        <message>
            <source>Obiettivi di risparmio</source>
            <translation>Savings goals</translation>
        </message>
        <message>
            <source>Prestiti</source>
            <translation>Loans</translation>
        </message>
        <message>
            <source>Beni</source>
            <translation>Assets</translation>
        </message>
        <message>
            <source>Abbonamenti ignorati</source>
            <translation>Ignored subscriptions</translation>
        </message>
        <message>
            <source>Avvisi nascosti</source>
            <translation>Dismissed alerts</translation>
        </message>
        <message>
            <source>Persone</source>
            <translation>People</translation>
        </message>
        <message>
            <source>Voci condivise</source>
            <translation>Shared entries</translation>
        </message>
        <message>
            <source>Non ci sono ancora mesi precedenti: la spesa variabile è stimata dai giorni già passati di questo mese, moltiplicata per i giorni che restano ({giorni}).</source>
            <translation>There are no earlier months yet: variable spending is estimated from the days of this month so far, multiplied by the days remaining ({giorni}).</translation>
        </message>
        <message>
            <source>Spesa variabile stimata: la media giornaliera dei mesi precedenti ({mesi}), esclusi i movimenti ricorrenti, moltiplicata per i giorni che restano ({giorni}).</source>
            <translation>Estimated variable spending: the daily average of the previous months ({mesi}), excluding recurring movements, multiplied by the days remaining ({giorni}).</translation>
        </message>
        <message>
            <source>Possibile addebito doppio</source>
            <translation>Possible double charge</translation>
        </message>
        <message>
            <source>«{nota}» da {importo} compare due volte, il {data1} e il {data2}.</source>
            <translation>“{nota}” for {importo} appears twice, on {data1} and on {data2}.</translation>
        </message>
        <message>
            <source>Saldo basso: {conto}</source>
            <translation>Low balance: {conto}</translation>
        </message>
        <message>
            <source>Il saldo è {saldo}, sotto la soglia di {soglia} che hai scelto.</source>
            <translation>The balance is {saldo}, below the threshold of {soglia} you chose.</translation>
        </message>
        <message>
            <source>Previsione di fine mese negativa</source>
            <translation>Negative end-of-month forecast</translation>
        </message>
        <message>
            <source>Al ritmo attuale il mese chiude a {saldo}.</source>
            <translation>At the current pace the month closes at {saldo}.</translation>
        </message>
        <message>
            <source>Scrivi un nome per la ricerca.</source>
            <translation>Enter a name for the search.</translation>
        </message>
        <message>
            <source>Tipo di avviso sconosciuto: {text}</source>
            <translation>Unknown alert kind: {text}</translation>
        </message>
        <message>
            <source>Spesa insolita: {categoria}</source>
            <translation>Unusual spending: {categoria}</translation>
        </message>
        <message>
            <source>Questo mese hai già speso {speso} in {categoria}, il {percentuale} in più della tua media mensile ({media}).</source>
            <translation>This month you have already spent {speso} on {categoria}, {percentuale} more than your monthly average ({media}).</translation>
        </message>
        <message>
            <source>«{file}» non è un file normale.</source>
            <translation>“{file}” is not a regular file.</translation>
        </message>
        <message>
            <source>permesso negato</source>
            <translation>permission denied</translation>
        </message>
        <message>
            <source>file o cartella inesistente</source>
            <translation>no such file or folder</translation>
        </message>
        <message>
            <source>è una cartella</source>
            <translation>it is a folder</translation>
        </message>
        <message>
            <source>una parte del percorso non è una cartella</source>
            <translation>part of the path is not a folder</translation>
        </message>
        <message>
            <source>disco pieno</source>
            <translation>the disk is full</translation>
        </message>
        <message>
            <source>file system di sola lettura</source>
            <translation>read-only file system</translation>
        </message>
        <message>
            <source>esiste già</source>
            <translation>it already exists</translation>
        </message>
        <message>
            <source>nome troppo lungo</source>
            <translation>the name is too long</translation>
        </message>
        <message>
            <source>troppi file aperti</source>
            <translation>too many open files</translation>
        </message>
        <message>
            <source>Dati non validi: l'identificativo {id} compare più volte in «{key}».</source>
            <translation>Invalid data: the identifier {id} appears more than once in “{key}”.</translation>
        </message>
        <message>
            <source>«{name}» non è un file: le cartelle e i pacchetti non si possono allegare.</source>
            <translation>“{name}” is not a file: folders and packages cannot be attached.</translation>
        </message>
        <message>
            <source>«{name}» supera i {limit} MB.</source>
            <translation>“{name}” is larger than {limit} MB.</translation>
        </message>
        <message>
            <source>Questo backup non esiste più.</source>
            <translation>This backup no longer exists.</translation>
        </message>
        <message>
            <source>Questo backup è di un'altra gestione.</source>
            <translation>This backup belongs to another managed profile.</translation>
        </message>
        <message>
            <source>Non riesco a eliminare «{file}»: {reason}.</source>
            <translation>Cannot delete “{file}”: {reason}.</translation>
        </message>
        <message>
            <source>Famiglia {cognome}</source>
            <translation>{cognome} family</translation>
        </message>
        <message>
            <source>Tipo di gestione sconosciuto: {text}</source>
            <translation>Unknown profile kind: {text}</translation>
        </message>
        <message>
            <source>Scrivi il nome della persona.</source>
            <translation>Enter the person's first name.</translation>
        </message>
        <message>
            <source>Scrivi il cognome.</source>
            <translation>Enter the surname.</translation>
        </message>
        <message>
            <source>Nome e cognome possono avere al massimo 60 caratteri ciascuno.</source>
            <translation>First name and surname can have at most 60 characters each.</translation>
        </message>
        <message>
            <source>Esiste già una gestione con questo nome.</source>
            <translation>A managed profile with this name already exists.</translation>
        </message>
        <message>
            <source>Questa gestione non esiste più.</source>
            <translation>This managed profile no longer exists.</translation>
        </message>
        <message>
            <source>L'allegato non esiste più.</source>
            <translation>The attachment no longer exists.</translation>
        </message>
        <message>
            <source>Non riesco a salvare i movimenti: {reason}</source>
            <translation>Cannot save the transactions: {reason}</translation>
        </message>
        <message>
            <source>Il file non è XML valido dalla riga {line} ({reason}): il resto non viene letto.</source>
            <translation>The file is not valid XML from line {line} ({reason}): the rest is not read.</translation>
        </message>
        <message>
            <source>Non si sa se è un'entrata o un'uscita (CdtDbtInd «{text}»).</source>
            <translation>Not known whether it is income or an expense (CdtDbtInd «{text}»).</translation>
        </message>
        <message>
            <source>Movimento non ancora contabilizzato (stato «{status}»): non viene importato.</source>
            <translation>Transaction not booked yet (status «{status}»): it is not imported.</translation>
        </message>
        <message>
            <source>Importo in {currency}, non in euro: il movimento non viene importato.</source>
            <translation>Amount in {currency}, not in euro: the transaction is not imported.</translation>
        </message>
        <message>
            <source>Movimento non contabilizzato: «{text}»</source>
            <translation>Transaction not booked: «{text}»</translation>
        </message>
        <message>
            <source>Riga di saldo, non un movimento: «{text}»</source>
            <translation>Balance line, not a transaction: «{text}»</translation>
        </message>
        <message>
            <source>Scrivi un nome per l'obiettivo.</source>
            <translation>Enter a name for the goal.</translation>
        </message>
        <message>
            <source>La cifra da raggiungere deve essere maggiore di zero.</source>
            <translation>The amount to reach must be greater than zero.</translation>
        </message>
        <message>
            <source>Il versamento non può essere zero.</source>
            <translation>The deposit cannot be zero.</translation>
        </message>
        <message>
            <source>Non puoi ritirare più di quanto hai messo da parte.</source>
            <translation>You cannot withdraw more than you have saved.</translation>
        </message>
        <message>
            <source>L'obiettivo non esiste più.</source>
            <translation>The goal no longer exists.</translation>
        </message>
        <message>
            <source>Raggiunto</source>
            <translation>Reached</translation>
        </message>
        <message>
            <source>Senza scadenza</source>
            <translation>No deadline</translation>
        </message>
        <message>
            <source>In linea</source>
            <translation>On track</translation>
        </message>
        <message>
            <source>In ritardo</source>
            <translation>Behind</translation>
        </message>
        <message>
            <source>Scaduto</source>
            <translation>Overdue</translation>
        </message>
        <message>
            <source>C'è già un periodo di disoccupazione in corso.</source>
            <translation>There is already a period of unemployment in progress.</translation>
        </message>
        <message>
            <source>La fine del periodo deve venire dopo l'inizio.</source>
            <translation>The end of the period must come after its start.</translation>
        </message>
        <message>
            <source>Il periodo si sovrappone a un altro periodo di disoccupazione.</source>
            <translation>The period overlaps another period of unemployment.</translation>
        </message>
        <message>
            <source>Scrivi un nome, per esempio Auto o Mutuo casa.</source>
            <translation>Enter a name, for example Car or Home mortgage.</translation>
        </message>
        <message>
            <source>Controlla capitale, tasso e numero di rate: devono essere maggiori di zero (il tasso può essere zero).</source>
            <translation>Check the principal, the rate and the number of instalments: they must be greater than zero (the rate may be zero).</translation>
        </message>
        <message>
            <source>Il valore non può essere negativo.</source>
            <translation>The value cannot be negative.</translation>
        </message>
        <message>
            <source>è fuori dall'intervallo</source>
            <translation>is out of range</translation>
        </message>
        <message>
            <source>Questo abbonamento non è tra quelli trovati.</source>
            <translation>This subscription is not among those found.</translation>
        </message>
        <message>
            <source>Questo abbonamento è già un movimento ricorrente.</source>
            <translation>This subscription is already a recurring transaction.</translation>
        </message>
        <message>
            <source>Valore non valido per {opzione}: «{valore}» ({atteso}).</source>
            <translation>Invalid value for {opzione}: “{valore}” ({atteso}).</translation>
        </message>
        <message>
            <source>serve una percentuale come -10 o 15, non sotto -100</source>
            <translation>a percentage such as -10 or 15 is needed, not below -100</translation>
        </message>
        <message>
            <source>serve ID=PERCENTUALE, per esempio spesa=-10</source>
            <translation>ID=PERCENT is needed, for example spesa=-10</translation>
        </message>
        <message>
            <source>serve un importo come 12,50</source>
            <translation>an amount such as 12,50 is needed</translation>
        </message>
        <message>
            <source>entrate {entrate}, uscite {uscite}, risparmio {risparmio}</source>
            <translation>income {entrate}, expenses {uscite}, savings {risparmio}</translation>
        </message>
        <message>
            <source>già raggiunto</source>
            <translation>already reached</translation>
        </message>
        <message>
            <source>non a questo ritmo</source>
            <translation>not at this pace</translation>
        </message>
        <message>
            <source>Mese medio ({mesi} mesi): {mese}</source>
            <translation>Average month ({mesi} months): {mese}</translation>
        </message>
        <message>
            <source>Con le modifiche: {mese}</source>
            <translation>With the changes: {mese}</translation>
        </message>
        <message>
            <source>Risparmi accumulati, senza e con le modifiche:</source>
            <translation>Savings accumulated, without and with the changes:</translation>
        </message>
        <message>
            <source>Obiettivo «{nome}»: senza modifiche {prima}, con le modifiche {dopo}</source>
            <translation>Goal “{nome}”: without changes {prima}, with the changes {dopo}</translation>
        </message>
        <message>
            <source>Servono i movimenti di almeno un mese completo per simulare.</source>
            <translation>At least one complete month of transactions is needed to simulate.</translation>
        </message>
        <message>
            <source>Uso: vantello-cli scenario [--category ID=PERCENTUALE]... [--income PERCENTUALE]
                           [--monthly-expense IMPORTO] [--today AAAA-MM-GG] [--json]
                           [--data-dir CARTELLA]

Parte dal mese medio degli ultimi tre mesi completi, applica le modifiche e mostra entrate e
uscite al mese, i risparmi accumulati nei prossimi dodici mesi e quando raggiungeresti ogni
obiettivo, con e senza le modifiche. Le percentuali si scrivono come -10 (10 % in meno) o 15.

  --category ID=PERCENTUALE   cambia le uscite di una categoria (anche più volte)
  --income PERCENTUALE        cambia le entrate
  --monthly-expense IMPORTO   aggiunge una spesa fissa al mese, scritta come 12,50
  --today AAAA-MM-GG          il giorno da prendere come oggi, invece dell'orologio
  --json                      scrive il risultato come JSON
  --data-dir CARTELLA         usa questa cartella invece di quella dell'applicazione
</source>
            <translation>Usage: vantello-cli scenario [--category ID=PERCENT]... [--income PERCENT]
                             [--monthly-expense AMOUNT] [--today YYYY-MM-DD] [--json]
                             [--data-dir FOLDER]

Starts from the average month of the last three complete months, applies the changes and shows
monthly income and expenses, the savings accumulated over the next twelve months and when each
goal would be reached, with and without the changes. Percentages are written as -10 (10 % less)
or 15.

  --category ID=PERCENT       changes the expenses of a category (may be repeated)
  --income PERCENT            changes the income
  --monthly-expense AMOUNT    adds a fixed monthly expense, written as 12,50
  --today YYYY-MM-DD          the day to take as today, instead of the clock
  --json                      writes the result as JSON
  --data-dir FOLDER           uses this folder instead of the application's
</translation>
        </message>
        <message>
            <source>settimanale</source>
            <translation>weekly</translation>
        </message>
        <message>
            <source>mensile</source>
            <translation>monthly</translation>
        </message>
        <message>
            <source>annuale</source>
            <translation>yearly</translation>
        </message>
        <message>
            <source>{nome}: {importo} {frequenza} (al mese {mese}, all'anno {anno})</source>
            <translation>{nome}: {importo} {frequenza} ({mese} a month, {anno} a year)</translation>
        </message>
        <message>
            <source>prezzo aumentato, prima {importo}</source>
            <translation>price increased, before {importo}</translation>
        </message>
        <message>
            <source>{numero} addebiti, l'ultimo il {ultimo}, il prossimo verso il {prossimo}</source>
            <translation>{numero} charges, the latest on {ultimo}, the next around {prossimo}</translation>
        </message>
        <message>
            <source>già un movimento ricorrente</source>
            <translation>already a recurring transaction</translation>
        </message>
        <message>
            <source>chiave: {chiave}</source>
            <translation>key: {chiave}</translation>
        </message>
        <message>
            <source>Nessun abbonamento trovato</source>
            <translation>No subscriptions found</translation>
        </message>
        <message>
            <source>Abbonamenti: {numero}</source>
            <translation>Subscriptions: {numero}</translation>
        </message>
        <message>
            <source>«{nome}» non verrà più proposto come abbonamento.</source>
            <translation>“{nome}” will no longer be suggested as a subscription.</translation>
        </message>
        <message>
            <source>Movimento ricorrente creato: «{nome}», {importo} {frequenza} dal {data}.</source>
            <translation>Recurring transaction created: “{nome}”, {importo} {frequenza} from {data}.</translation>
        </message>
        <message>
            <source>Argomento inatteso: {testo}</source>
            <translation>Unexpected argument: {testo}</translation>
        </message>
        <message>
            <source>Azione sconosciuta: {testo} (list, ignore oppure recurring).</source>
            <translation>Unknown action: {testo} (list, ignore or recurring).</translation>
        </message>
        <message>
            <source>Manca la chiave dell'abbonamento.</source>
            <translation>The subscription's key is missing.</translation>
        </message>
        <message>
            <source>--json vale solo per l'elenco degli abbonamenti.</source>
            <translation>--json applies only to the list of subscriptions.</translation>
        </message>
        <message>
            <source>Uso: vantello-cli subscriptions [list] [--json] [--data-dir CARTELLA]
     vantello-cli subscriptions ignore CHIAVE [--data-dir CARTELLA]
     vantello-cli subscriptions recurring CHIAVE [--data-dir CARTELLA]

Elenca le spese con la stessa descrizione e un importo simile che tornano ogni settimana,
mese o anno (servono almeno tre addebiti, due per quelli annuali), con il costo al mese e
all'anno e gli aumenti di prezzo. Con ignore l'abbonamento con quella chiave non viene più
proposto; con recurring diventa un movimento ricorrente dal prossimo addebito previsto.

  --json                 scrive gli abbonamenti come JSON
  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione
</source>
            <translation>Usage: vantello-cli subscriptions [list] [--json] [--data-dir FOLDER]
       vantello-cli subscriptions ignore KEY [--data-dir FOLDER]
       vantello-cli subscriptions recurring KEY [--data-dir FOLDER]

Lists the expenses with the same description and a similar amount that come back every week,
month or year (at least three charges are needed, two for yearly ones), with their monthly and
yearly cost and price increases. With ignore the subscription with that key is no longer
suggested; with recurring it becomes a recurring transaction from its next expected charge.

  --json                 writes the subscriptions as JSON
  --data-dir FOLDER      uses this folder instead of the application's
</translation>
        </message>
        <message>
            <source>Manca {opzione}.</source>
            <translation>{opzione} is missing.</translation>
        </message>
        <message>
            <source>serve un importo come 100.000 o 100000,50</source>
            <translation>an amount such as 100.000 or 100000,50 is needed</translation>
        </message>
        <message>
            <source>serve un tasso in percento come 3,5</source>
            <translation>a rate in percent such as 3,5 is needed</translation>
        </message>
        <message>
            <source>Rata mensile: {rata}, interessi in tutto: {interessi}</source>
            <translation>Monthly instalment: {rata}, total interest: {interessi}</translation>
        </message>
        <message>
            <source>rata  data        importo  interessi  capitale  residuo</source>
            <translation>no.   date        amount   interest   capital   remaining</translation>
        </message>
        <message>
            <source>Azione sconosciuta: {testo} (c'è solo schedule).</source>
            <translation>Unknown action: {testo} (there is only schedule).</translation>
        </message>
        <message>
            <source>Uso: vantello-cli loan schedule --principal IMPORTO --rate TASSO --months N [--start AAAA-MM-GG] [--json]

Calcola la rata mensile e il piano di ammortamento (alla francese) di un prestito.

  --principal IMPORTO    il capitale preso in prestito, per esempio 100.000 o 100000,50
  --rate TASSO           il tasso annuo in percento, per esempio 3,5 (0 senza interessi)
  --months N             il numero di rate mensili
  --start AAAA-MM-GG     il giorno della prima rata (oggi se manca)
  --json                 scrive la rata e il piano come JSON
</source>
            <translation>Usage: vantello-cli loan schedule --principal AMOUNT --rate RATE --months N [--start YYYY-MM-DD] [--json]

Works out the monthly instalment and the repayment plan (French amortisation) of a loan.

  --principal AMOUNT     the capital borrowed, for example 100.000 or 100000,50
  --rate RATE            the yearly rate in percent, for example 3,5 (0 without interest)
  --months N             the number of monthly instalments
  --start YYYY-MM-DD     the day of the first instalment (today when missing)
  --json                 writes the instalment and the plan as JSON
</translation>
        </message>
        <message>
            <source>{nome}: rata {rata}, da restituire {residuo}, rate pagate {pagate} di {rate}, interessi in tutto {interessi}, ultima rata il {ultima}</source>
            <translation>{nome}: instalment {rata}, still owed {residuo}, {pagate} of {rate} instalments paid, total interest {interessi}, last instalment on {ultima}</translation>
        </message>
        <message>
            <source>Prestiti: {numero}</source>
            <translation>Loans: {numero}</translation>
        </message>
        <message>
            <source>Uso: vantello-cli loans [--today AAAA-MM-GG] [--json] [--data-dir CARTELLA]

Elenca i prestiti e i mutui con la rata, il capitale ancora da restituire, le rate pagate e
quelle che restano, gli interessi in tutto e la data dell'ultima rata.

  --today AAAA-MM-GG     il giorno da prendere come oggi, invece dell'orologio
  --json                 scrive i prestiti come JSON
  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione
</source>
            <translation>Usage: vantello-cli loans [--today YYYY-MM-DD] [--json] [--data-dir FOLDER]

Lists the loans and mortgages with the instalment, the capital still owed, the instalments paid
and those left, the total interest and the date of the last instalment.

  --today YYYY-MM-DD     the day to take as today, instead of the clock
  --json                 writes the loans as JSON
  --data-dir FOLDER      uses this folder instead of the application's
</translation>
        </message>
        <message>
            <source>Patrimonio netto: {totale} (conti {conti}, beni {beni}, debiti {debiti})</source>
            <translation>Net worth: {totale} (accounts {conti}, assets {beni}, debts {debiti})</translation>
        </message>
        <message>
            <source>Uso: vantello-cli networth [--months N] [--today AAAA-MM-GG] [--json] [--data-dir CARTELLA]

Mostra il patrimonio netto di oggi (saldi dei conti più il valore dei beni meno il capitale
ancora dovuto sui prestiti) e la sua storia: la fine di ognuno dei mesi precedenti, poi oggi.

  --months N             quanti mesi, compreso quello in corso (12 se manca)
  --today AAAA-MM-GG     il giorno da prendere come oggi, invece dell'orologio
  --json                 scrive il patrimonio e la storia come JSON
  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione
</source>
            <translation>Usage: vantello-cli networth [--months N] [--today YYYY-MM-DD] [--json] [--data-dir FOLDER]

Shows today's net worth (the account balances plus the value of the assets minus the capital
still owed on loans) and its history: the end of each of the months before, then today.

  --months N             how many months, the current one included (12 when missing)
  --today YYYY-MM-DD     the day to take as today, instead of the clock
  --json                 writes the net worth and its history as JSON
  --data-dir FOLDER      uses this folder instead of the application's
</translation>
        </message>
        <message>
            <source>serve un numero intero da {minimo} a {massimo}</source>
            <translation>a whole number from {minimo} to {massimo} is needed</translation>
        </message>
        <message>
            <source>--reminder-hour vale solo insieme a --reminder-day.</source>
            <translation>--reminder-hour works only together with --reminder-day.</translation>
        </message>
        <message>
            <source>Senza lavoro dal {inizio} al {fine}</source>
            <translation>Without work from {inizio} to {fine}</translation>
        </message>
        <message>
            <source>Senza lavoro dal {inizio}, in corso</source>
            <translation>Without work since {inizio}, in progress</translation>
        </message>
        <message>
            <source>Oggi sei senza lavoro.</source>
            <translation>Today you are without work.</translation>
        </message>
        <message>
            <source>Ultimo stipendio: {importo} il {giorno}</source>
            <translation>Last salary: {importo} on {giorno}</translation>
        </message>
        <message>
            <source>Nessuno stipendio registrato.</source>
            <translation>No salary recorded.</translation>
        </message>
        <message>
            <source>Lo stipendio di questo mese è registrato.</source>
            <translation>This month's salary is recorded.</translation>
        </message>
        <message>
            <source>Lo stipendio di questo mese non è ancora registrato.</source>
            <translation>This month's salary is not recorded yet.</translation>
        </message>
        <message>
            <source>Uso: vantello-cli work [--reminder-day G [--reminder-hour H]] [--today AAAA-MM-GG] [--json]
                       [--data-dir CARTELLA]

Mostra i periodi di disoccupazione, quello in corso, l'ultimo stipendio e se quello del mese
è già registrato. Con --reminder-day dice anche quando scatterebbe il promemoria dello
stipendio con quel giorno e quell'ora.

  --reminder-day G       il giorno del mese del promemoria, da 1 a 31
  --reminder-hour H      l'ora del promemoria, da 0 a 23 (9 se manca)
  --today AAAA-MM-GG     il giorno da prendere come oggi, invece dell'orologio
  --json                 scrive tutto come JSON
  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione
</source>
            <translation>Usage: vantello-cli work [--reminder-day D [--reminder-hour H]] [--today YYYY-MM-DD] [--json]
                         [--data-dir FOLDER]

Shows the periods of unemployment, the one in progress, the last salary and whether this
month's is recorded yet. With --reminder-day it also tells when the salary reminder would go
off with that day and hour.

  --reminder-day D       the day of the month of the reminder, 1 to 31
  --reminder-hour H      the hour of the reminder, 0 to 23 (9 when missing)
  --today YYYY-MM-DD     the day to take as today, instead of the clock
  --json                 writes everything as JSON
  --data-dir FOLDER      uses this folder instead of the application's
</translation>
        </message>
        <message>
            <source>Per la pizza</source>
            <translation>For the pizza</translation>
        </message>
        <message>
            <source>Conto risparmi</source>
            <translation>Savings account</translation>
        </message>
        <message>
            <source>Vacanze in Sardegna</source>
            <translation>Holiday in Sardinia</translation>
        </message>
        <message>
            <source>Prestito auto</source>
            <translation>Car loan</translation>
        </message>
        <message>
            <source>Auto</source>
            <translation>Car</translation>
        </message>
        <message>
            <source> Le modifiche non verranno salvate.</source>
            <translation> Changes will not be saved.</translation>
        </message>
        <message>
            <source>Non trovo la cartella dei dati: le modifiche non verranno salvate.</source>
            <translation>The data folder cannot be found: changes will not be saved.</translation>
        </message>
        <message>
            <source>Il file dei movimenti era danneggiato: l'ho spostato in «{name}» e Vantello riparte vuoto.</source>
            <translation>The movements file was damaged: it was moved to “{name}” and Vantello starts empty.</translation>
        </message>
        <message>
            <source>Non riesco a leggere i movimenti. Le modifiche non verranno salvate.</source>
            <translation>The movements cannot be read. Changes will not be saved.</translation>
        </message>
        <message>
            <source>Annulla {action}</source>
            <translation>Undo {action}</translation>
        </message>
        <message>
            <source>Ripeti {action}</source>
            <translation>Redo {action}</translation>
        </message>
        <message>
            <source>Backup non riuscito: </source>
            <translation>Backup failed: </translation>
        </message>
        <message>
            <source>Ripristino non riuscito: </source>
            <translation>Restore failed: </translation>
        </message>
        <message>
            <source>Non riesco a usare questa cartella per i backup: </source>
            <translation>This folder cannot be used for backups: </translation>
        </message>
        <message>
            <source>Importa movimenti</source>
            <translation>Import movements</translation>
        </message>
        <message>
            <source>Vantello {month}.csv</source>
            <translation>Vantello {month}.csv</translation>
        </message>
        <message>
            <source>Vantello movimenti.csv</source>
            <translation>Vantello movements.csv</translation>
        </message>
        <message>
            <source>È passato il giorno dello stipendio (il {giorno}): non l'hai ancora registrato questo mese.</source>
            <translation>Payday has passed (the {giorno}): you have not recorded this month's salary yet.</translation>
        </message>
        <message>
            <source>Vantello: {count} nuovi avvisi</source>
            <translation>Vantello: {count} new alerts</translation>
        </message>
        <message>
            <source>Le notifiche di Vantello sono disattivate: resterà solo l'avviso nell'app.</source>
            <translation>Vantello's notifications are turned off: only the notice in the app will remain.</translation>
        </message>
        <message>
            <source>È il giorno dello stipendio</source>
            <translation>It's payday</translation>
        </message>
        <message>
            <source>Registra lo stipendio in Vantello: l'importo dell'ultimo è già pronto.</source>
            <translation>Record your salary in Vantello: the amount of the last one is already filled in.</translation>
        </message>
        <message>
            <source>Salva periodo senza lavoro</source>
            <translation>Save period without work</translation>
        </message>
        <message>
            <source>Elimina periodo senza lavoro</source>
            <translation>Delete period without work</translation>
        </message>
        <message>
            <source>non è un giorno</source>
            <translation>is not a day</translation>
        </message>
        <message>
            <source>Automatico (lingua del sistema)</source>
            <translation>Automatic (system language)</translation>
        </message>
        <message>
            <source>Italiano</source>
            <translation>Italiano</translation>
        </message>
        <message>
            <source>English</source>
            <translation>English</translation>
        </message>
        <message>
            <source>Lingua dell'app</source>
            <translation>App language</translation>
        </message>
        <message>
            <source>La nuova lingua si applica al riavvio di Vantello.</source>
            <translation>The new language applies when Vantello restarts.</translation>
        </message>
        <message>
            <source>Riavvia ora</source>
            <translation>Restart now</translation>
        </message>
        <message>
            <source>Automatico</source>
            <translation>Automatic</translation>
        </message>
        <message>
            <source>Chiaro</source>
            <translation>Light</translation>
        </message>
        <message>
            <source>Scuro</source>
            <translation>Dark</translation>
        </message>
        <message>
            <source>Solarized chiaro</source>
            <translation>Solarized light</translation>
        </message>
        <message>
            <source>Solarized scuro</source>
            <translation>Solarized dark</translation>
        </message>
        <message>
            <source>Tema</source>
            <translation>Theme</translation>
        </message>
        <message>
            <source>Il tema vale per tutte le finestre di Vantello. «Automatico» segue l'aspetto scelto nelle impostazioni del sistema.</source>
            <translation>The theme applies to every Vantello window. “Automatic” follows the appearance chosen in the system settings.</translation>
        </message>
        <message>
            <source>Aggiunta rapida nella barra dei menu</source>
            <translation>Quick add in the menu bar</translation>
        </message>
        <message>
            <source>Un'icona € in alto a destra per aggiungere un movimento senza aprire la finestra di Vantello.</source>
            <translation>A € icon at the top right to add a movement without opening the Vantello window.</translation>
        </message>
        <message>
            <source>Generali</source>
            <translation>General</translation>
        </message>
        <message>
            <source>Backup</source>
            <translation>Backup</translation>
        </message>
        <message>
            <source>Aspetto</source>
            <translation>Appearance</translation>
        </message>
        <message>
            <source>Gestioni</source>
            <translation>Profiles</translation>
        </message>
        <message>
            <source>Prossimo promemoria dello stipendio: il {giorno} alle {ora}</source>
            <translation>Next salary reminder: on {giorno} at {ora}:00</translation>
        </message>
        <message>
            <source>0,00</source>
            <translation>0.00</translation>
        </message>
        <message>
            <source>1 EUR = {rate} {code} · cambio BCE del {day}</source>
            <translation>1 EUR = {rate} {code} · ECB rate of {day}</translation>
        </message>
        <message>
            <source>Aggiungi allegato</source>
            <translation>Add attachment</translation>
        </message>
        <message>
            <source>Aggiungi…</source>
            <translation>Add…</translation>
        </message>
        <message>
            <source>Allegati</source>
            <translation>Attachments</translation>
        </message>
        <message>
            <source>Annulla</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Apri</source>
            <translation>Open</translation>
        </message>
        <message>
            <source>Apri allegato</source>
            <translation>Open attachment</translation>
        </message>
        <message>
            <source>Conto</source>
            <translation>Account</translation>
        </message>
        <message>
            <source>Dividi con</source>
            <translation>Split with</translation>
        </message>
        <message>
            <source>Dividi in parti uguali</source>
            <translation>Split equally</translation>
        </message>
        <message>
            <source>Importo in euro</source>
            <translation>Amount in euro</translation>
        </message>
        <message>
            <source>Importo in valuta</source>
            <translation>Amount in currency</translation>
        </message>
        <message>
            <source>Modifica movimento</source>
            <translation>Edit movement</translation>
        </message>
        <message>
            <source>Nessun cambio BCE disponibile: scrivi l'importo in euro.</source>
            <translation>No ECB rate available: type the amount in euro.</translation>
        </message>
        <message>
            <source>Non hai ancora aggiunto nessuna persona.</source>
            <translation>You have not added anyone yet.</translation>
        </message>
        <message>
            <source>Non riesco ad aprire «{name}».</source>
            <translation>Cannot open “{name}”.</translation>
        </message>
        <message>
            <source>Nuovo movimento</source>
            <translation>New movement</translation>
        </message>
        <message>
            <source>Persona</source>
            <translation>Person</translation>
        </message>
        <message>
            <source>Quota</source>
            <translation>Share</translation>
        </message>
        <message>
            <source>Rimuovi</source>
            <translation>Remove</translation>
        </message>
        <message>
            <source>Rimuovi allegato</source>
            <translation>Remove attachment</translation>
        </message>
        <message>
            <source>Salva</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Scegli il file da allegare</source>
            <translation>Choose the file to attach</translation>
        </message>
        <message>
            <source>Scrivi l'importo in {code}, per esempio 250 o 250,00.</source>
            <translation>Type the amount in {code}, for example 250 or 250.00.</translation>
        </message>
        <message>
            <source>Scrivi la quota di {name}, per esempio 12,50.</source>
            <translation>Type {name}'s share, for example 12.50.</translation>
        </message>
        <message>
            <source>Scrivi un importo, per esempio 250 o 250,00.</source>
            <translation>Type an amount, for example 250 or 250.00.</translation>
        </message>
        <message>
            <source>Valuta</source>
            <translation>Currency</translation>
        </message>
        <message>
            <source>Verso il conto</source>
            <translation>To account</translation>
        </message>
        <message>
            <source>Anteprima dei movimenti</source>
            <translation>Preview of the movements</translation>
        </message>
        <message>
            <source>Barra verticale (|)</source>
            <translation>Vertical bar (|)</translation>
        </message>
        <message>
            <source>Colonna {number}</source>
            <translation>Column {number}</translation>
        </message>
        <message>
            <source>Colonne del file</source>
            <translation>Columns of the file</translation>
        </message>
        <message>
            <source>Conto in cui importare</source>
            <translation>Account to import into</translation>
        </message>
        <message>
            <source>Descrizione</source>
            <translation>Description</translation>
        </message>
        <message>
            <source>Importa</source>
            <translation>Import</translation>
        </message>
        <message>
            <source>Importa anche i movimenti ripetuti nel file</source>
            <translation>Also import the movements repeated in the file</translation>
        </message>
        <message>
            <source>Importa estratto conto</source>
            <translation>Import bank statement</translation>
        </message>
        <message>
            <source>Importati {count} movimenti</source>
            <translation>Imported {count} movements</translation>
        </message>
        <message>
            <source>Importato {count} movimento</source>
            <translation>Imported {count} movement</translation>
        </message>
        <message>
            <source>Nessun movimento importato</source>
            <translation>No movement imported</translation>
        </message>
        <message>
            <source>Nessun movimento nuovo da aggiungere</source>
            <translation>No new movement to add</translation>
        </message>
        <message>
            <source>Nessuna</source>
            <translation>None</translation>
        </message>
        <message>
            <source>Nessuna riga del file diventa un movimento: scegli le colonne giuste.</source>
            <translation>No row of the file becomes a movement: choose the right columns.</translation>
        </message>
        <message>
            <source>Non c'è un conto in cui importare.</source>
            <translation>There is no account to import into.</translation>
        </message>
        <message>
            <source>Non importata</source>
            <translation>Not imported</translation>
        </message>
        <message>
            <source>Punto e virgola (;)</source>
            <translation>Semicolon (;)</translation>
        </message>
        <message>
            <source>Riconosci i giroconti</source>
            <translation>Recognise transfers</translation>
        </message>
        <message>
            <source>Riga</source>
            <translation>Row</translation>
        </message>
        <message>
            <source>Riga {line}</source>
            <translation>Row {line}</translation>
        </message>
        <message>
            <source>Saranno aggiunti {count} movimenti</source>
            <translation>{count} movements will be added</translation>
        </message>
        <message>
            <source>Sarà aggiunto {count} movimento</source>
            <translation>{count} movement will be added</translation>
        </message>
        <message>
            <source>Tabulazione</source>
            <translation>Tab</translation>
        </message>
        <message>
            <source>Un movimento opposto dello stesso importo su un altro tuo conto, entro tre giorni, diventa un giroconto.</source>
            <translation>An opposite movement of the same amount on another of your accounts, within three days, becomes a transfer.</translation>
        </message>
        <message>
            <source>Usa le colonne proposte</source>
            <translation>Use the suggested columns</translation>
        </message>
        <message>
            <source>Usa le colonne proposte invece di quelle dell'ultima importazione</source>
            <translation>Use the suggested columns instead of those of the last import</translation>
        </message>
        <message>
            <source>Uso le colonne dell'ultima importazione da questa banca.</source>
            <translation>Using the columns of the last import from this bank.</translation>
        </message>
        <message>
            <source>Virgola (,)</source>
            <translation>Comma (,)</translation>
        </message>
        <message>
            <source>da una parola del nome</source>
            <translation>from a word in the name</translation>
        </message>
        <message>
            <source>dai dati della prima riga</source>
            <translation>from the data of the first row</translation>
        </message>
        <message>
            <source>dal nome della colonna</source>
            <translation>from the column name</translation>
        </message>
        <message>
            <source>dalla prima riga</source>
            <translation>from the first line</translation>
        </message>
        <message>
            <source>dalle colonne trovate</source>
            <translation>from the columns found</translation>
        </message>
        <message>
            <source>dalle date del file</source>
            <translation>from the dates in the file</translation>
        </message>
        <message>
            <source>dalle righe del file</source>
            <translation>from the lines of the file</translation>
        </message>
        <message>
            <source>nessuna trovata</source>
            <translation>none found</translation>
        </message>
        <message>
            <source>nomi nella prima riga</source>
            <translation>names in the first row</translation>
        </message>
        <message>
            <source>nomi trovati più in basso</source>
            <translation>names found further down</translation>
        </message>
        <message>
            <source>non trovata</source>
            <translation>not found</translation>
        </message>
        <message>
            <source>predefinito</source>
            <translation>default</translation>
        </message>
        <message>
            <source>scelta da te</source>
            <translation>your choice</translation>
        </message>
        <message>
            <source>sopra il primo movimento</source>
            <translation>above the first movement</translation>
        </message>
        <message>
            <source>{count} giroconti</source>
            <translation>{count} transfers</translation>
        </message>
        <message>
            <source>{count} giroconto</source>
            <translation>{count} transfer</translation>
        </message>
        <message>
            <source>{count} già presente</source>
            <translation>{count} already present</translation>
        </message>
        <message>
            <source>{count} già presenti</source>
            <translation>{count} already present</translation>
        </message>
        <message>
            <source>{count} movimenti da importare</source>
            <translation>{count} movements to import</translation>
        </message>
        <message>
            <source>{count} movimenti del file sono uguali a uno precedente dello stesso file (per esempio due biglietti dello stesso giorno): senza questa scelta ne viene importato uno solo.</source>
            <translation>{count} movements of the file equal an earlier one of the same file (for example two tickets of the same day): without this choice only one is imported.</translation>
        </message>
        <message>
            <source>{count} movimento da importare</source>
            <translation>{count} movement to import</translation>
        </message>
        <message>
            <source>{count} movimento del file è uguale a uno precedente dello stesso file (per esempio due biglietti dello stesso giorno): senza questa scelta ne viene importato uno solo.</source>
            <translation>{count} movement of the file equals an earlier one of the same file (for example two tickets of the same day): without this choice only one is imported.</translation>
        </message>
        <message>
            <source>{count} riga con un problema</source>
            <translation>{count} row with a problem</translation>
        </message>
        <message>
            <source>{count} riga non valida</source>
            <translation>{count} invalid row</translation>
        </message>
        <message>
            <source>{count} righe con un problema</source>
            <translation>{count} rows with a problem</translation>
        </message>
        <message>
            <source>{count} righe non valide</source>
            <translation>{count} invalid rows</translation>
        </message>
        <message>
            <source>{file} · {format}</source>
            <translation>{file} · {format}</translation>
        </message>
        <message>
            <source>Aggiungi entrata</source>
            <translation>Add income</translation>
        </message>
        <message>
            <source>Aggiungi il primo movimento</source>
            <translation>Add your first movement</translation>
        </message>
        <message>
            <source>Aggiungi movimento</source>
            <translation>Add movement</translation>
        </message>
        <message>
            <source>Aggiungi stipendio</source>
            <translation>Add salary</translation>
        </message>
        <message>
            <source>Aggiungi uscita</source>
            <translation>Add expense</translation>
        </message>
        <message>
            <source>Avvisi</source>
            <translation>Alerts</translation>
        </message>
        <message>
            <source>Con allegati</source>
            <translation>With attachments</translation>
        </message>
        <message>
            <source>Divisa con altre persone</source>
            <translation>Shared with other people</translation>
        </message>
        <message>
            <source>Duplica</source>
            <translation>Duplicate</translation>
        </message>
        <message>
            <source>Elimina</source>
            <translation>Delete</translation>
        </message>
        <message>
            <source>Elimina {count} movimenti</source>
            <translation>Delete {count} movements</translation>
        </message>
        <message>
            <source>Entrate</source>
            <translation>Income</translation>
        </message>
        <message>
            <source>Importa un estratto conto</source>
            <translation>Import a bank statement</translation>
        </message>
        <message>
            <source>Manca 1 giorno alla fine del mese</source>
            <translation>1 day left in the month</translation>
        </message>
        <message>
            <source>Mancano {days} giorni alla fine del mese</source>
            <translation>{days} days left in the month</translation>
        </message>
        <message>
            <source>Mese precedente</source>
            <translation>Previous month</translation>
        </message>
        <message>
            <source>Mese successivo</source>
            <translation>Next month</translation>
        </message>
        <message>
            <source>Modifica…</source>
            <translation>Edit…</translation>
        </message>
        <message>
            <source>Mostra un solo conto</source>
            <translation>Show one account only</translation>
        </message>
        <message>
            <source>Movimenti del mese</source>
            <translation>Movements of the month</translation>
        </message>
        <message>
            <source>Nasconde questo avviso per sempre</source>
            <translation>Hides this alert for good</translation>
        </message>
        <message>
            <source>Nascondi avviso</source>
            <translation>Hide alert</translation>
        </message>
        <message>
            <source>Nessun movimento in questo mese.</source>
            <translation>No movements this month.</translation>
        </message>
        <message>
            <source>Non mostrare più</source>
            <translation>Don't show again</translation>
        </message>
        <message>
            <source>Non mostrare più l'avviso «{title}»</source>
            <translation>Don't show the alert “{title}” again</translation>
        </message>
        <message>
            <source>Prova con dati di esempio</source>
            <translation>Try with sample data</translation>
        </message>
        <message>
            <source>Qui trovi le entrate e le uscite di ogni mese, giorno per giorno, con i totali e la stima di fine mese. Aggiungi il primo movimento, importa l'estratto conto della tua banca o prova l'app con dati di esempio.</source>
            <translation>Here you find each month's income and expenses, day by day, with the totals and the month-end estimate. Add your first movement, import your bank's statement or try the app with sample data.</translation>
        </message>
        <message>
            <source>Ricordamelo più tardi</source>
            <translation>Remind me later</translation>
        </message>
        <message>
            <source>Saldo del mese</source>
            <translation>Month's net</translation>
        </message>
        <message>
            <source>Saldo più basso previsto</source>
            <translation>Lowest balance ahead</translation>
        </message>
        <message>
            <source>Saldo previsto a fine mese: come è calcolato</source>
            <translation>Expected month-end balance: how it is worked out</translation>
        </message>
        <message>
            <source>Stima a fine mese</source>
            <translation>Month-end estimate</translation>
        </message>
        <message>
            <source>Torna al mese in corso</source>
            <translation>Back to this month</translation>
        </message>
        <message>
            <source>Tutti i conti</source>
            <translation>All accounts</translation>
        </message>
        <message>
            <source>Uscite</source>
            <translation>Expenses</translation>
        </message>
        <message>
            <source>il {day}</source>
            <translation>on {day}</translation>
        </message>
        <message>
            <source>{day}, saldo del giorno {amount}</source>
            <translation>{day}, day's net {amount}</translation>
        </message>
        <message>
            <source>{difference} rispetto a {month}</source>
            <translation>{difference} compared with {month}</translation>
        </message>
        <message>
            <source>Entrate e uscite del mese finora: {amount}</source>
            <translation>Income and expenses of the month so far: {amount}</translation>
        </message>
        <message>
            <source>Movimenti ricorrenti ancora previsti: {amount}</source>
            <translation>Recurring movements still due: {amount}</translation>
        </message>
        <message>
            <source>Spesa variabile stimata: {amount}</source>
            <translation>Estimated variable spending: {amount}</translation>
        </message>
        <message>
            <source>Saldo previsto a fine mese: {amount}</source>
            <translation>Expected month-end balance: {amount}</translation>
        </message>
        <message>
            <source>C'è un altro avviso.</source>
            <translation>There is one more alert.</translation>
        </message>
        <message>
            <source>Ci sono altri {count} avvisi.</source>
            <translation>There are {count} more alerts.</translation>
        </message>
        <message>
            <source>Aggiungi</source>
            <translation>Add</translation>
        </message>
        <message>
            <source>Aggiungi un movimento…</source>
            <translation>Add a movement…</translation>
        </message>
        <message>
            <source>Aggiunta rapida</source>
            <translation>Quick add</translation>
        </message>
        <message>
            <source>Aggiunto {importo} in {categoria}</source>
            <translation>Added {importo} in {categoria}</translation>
        </message>
        <message>
            <source>Apri Vantello</source>
            <translation>Open Vantello</translation>
        </message>
        <message>
            <source>Backup disponibili</source>
            <translation>Available backups</translation>
        </message>
        <message>
            <source>Backup in corso</source>
            <translation>Backup in progress</translation>
        </message>
        <message>
            <source>Cartella</source>
            <translation>Folder</translation>
        </message>
        <message>
            <source>Cognome</source>
            <translation>Last name</translation>
        </message>
        <message>
            <source>Eliminare la gestione {nome}?</source>
            <translation>Delete the profile {nome}?</translation>
        </message>
        <message>
            <source>Eliminare la gestione?</source>
            <translation>Delete the profile?</translation>
        </message>
        <message>
            <source>Elimina…</source>
            <translation>Delete…</translation>
        </message>
        <message>
            <source>Esci</source>
            <translation>Quit</translation>
        </message>
        <message>
            <source>Esegui un backup ora</source>
            <translation>Back up now</translation>
        </message>
        <message>
            <source>Famiglia</source>
            <translation>Household</translation>
        </message>
        <message>
            <source>Giorno del mese</source>
            <translation>Day of the month</translation>
        </message>
        <message>
            <source>I tuoi movimenti, conti e allegati</source>
            <translation>Your movements, accounts and attachments</translation>
        </message>
        <message>
            <source>Impostazioni</source>
            <translation>Settings</translation>
        </message>
        <message>
            <source>Le mie finanze</source>
            <translation>My finances</translation>
        </message>
        <message>
            <source>Mostra nella cartella</source>
            <translation>Show in folder</translation>
        </message>
        <message>
            <source>Movimenti e allegati di {nome} vanno nel Cestino, da cui puoi ancora recuperarli. I backup restano.</source>
            <translation>The movements and attachments of {nome} go to the Trash, where you can still get them back. The backups stay.</translation>
        </message>
        <message>
            <source>Movimenti e allegati di {owner} tornano com'erano il {date}. Prima Vantello fa un backup della situazione attuale, così puoi tornare indietro.</source>
            <translation>The movements and attachments of {owner} go back to how they were on {date}. Vantello first backs up the current state, so you can go back.</translation>
        </message>
        <message>
            <source>Nessuna cartella dei dati</source>
            <translation>No data folder</translation>
        </message>
        <message>
            <source>Nessuno</source>
            <translation>None</translation>
        </message>
        <message>
            <source>Nome</source>
            <translation>First name</translation>
        </message>
        <message>
            <source>Non riesco a riavviare Vantello: chiudilo e aprilo di nuovo.</source>
            <translation>Vantello cannot restart itself: close it and open it again.</translation>
        </message>
        <message>
            <source>Nuova gestione</source>
            <translation>New profile</translation>
        </message>
        <message>
            <source>Ora</source>
            <translation>Hour</translation>
        </message>
        <message>
            <source>Passa a questa</source>
            <translation>Switch to it</translation>
        </message>
        <message>
            <source>Promemoria dello stipendio</source>
            <translation>Salary reminder</translation>
        </message>
        <message>
            <source>Ricordami di registrare lo stipendio</source>
            <translation>Remind me to record the salary</translation>
        </message>
        <message>
            <source>Rinomina gestione</source>
            <translation>Rename profile</translation>
        </message>
        <message>
            <source>Rinomina…</source>
            <translation>Rename…</translation>
        </message>
        <message>
            <source>Ripristina</source>
            <translation>Restore</translation>
        </message>
        <message>
            <source>Ripristinare questo backup?</source>
            <translation>Restore this backup?</translation>
        </message>
        <message>
            <source>Ripristina…</source>
            <translation>Restore…</translation>
        </message>
        <message>
            <source>Scegli cartella…</source>
            <translation>Choose folder…</translation>
        </message>
        <message>
            <source>Scegli la cartella dei backup</source>
            <translation>Choose the backup folder</translation>
        </message>
        <message>
            <source>Tace nei mesi in cui lo stipendio è già registrato e nei periodi senza lavoro.</source>
            <translation>Silent in months whose salary is already recorded and during periods without work.</translation>
        </message>
        <message>
            <source>Tieni a parte i conti di un'altra persona o di una famiglia: ogni gestione ha movimenti, allegati e backup suoi.</source>
            <translation>Keep the finances of another person or of a household apart: each profile has its own movements, attachments and backups.</translation>
        </message>
        <message>
            <source>Ultimo backup</source>
            <translation>Last backup</translation>
        </message>
        <message>
            <source>Usa la cartella predefinita</source>
            <translation>Use the default folder</translation>
        </message>
        <message>
            <source>Vantello fa un backup al giorno di movimenti e allegati e tiene gli ultimi {n}. Scegli una cartella in una cartella sincronizzata o su un disco esterno per averli anche fuori da questo computer.</source>
            <translation>Vantello backs up movements and attachments once a day and keeps the last {n}. Choose a folder in a synced folder or on an external disk to have them outside this computer too.</translation>
        </message>
        <message>
            <source>le mie finanze</source>
            <translation>my finances</translation>
        </message>
        <message>
            <source>{nome} (in uso)</source>
            <translation>{nome} (in use)</translation>
        </message>
        <message>
            <source>Scrivi un importo maggiore di zero, per esempio 12,50.</source>
            <translation>Enter an amount greater than zero, for example 12.50.</translation>
        </message>
        <message>
            <source>Elimina movimento</source>
            <translation>Delete movement</translation>
        </message>
        <message>
            <source>Elimina movimenti</source>
            <translation>Delete movements</translation>
        </message>
        <message>
            <source>Duplica movimento</source>
            <translation>Duplicate movement</translation>
        </message>
        <message>
            <source>Gli allegati non sono disponibili.</source>
            <translation>Attachments are not available.</translation>
        </message>
        <message>
            <source>Non riesco ad allegare «{name}»: {reason}</source>
            <translation>I can't attach “{name}”: {reason}</translation>
        </message>
        <message>
            <source>Grafici</source>
            <translation>Charts</translation>
        </message>
        <message>
            <source>Cerca</source>
            <translation>Search</translation>
        </message>
        <message>
            <source>Obiettivi</source>
            <translation>Goals</translation>
        </message>
        <message>
            <source>Scenari</source>
            <translation>Scenarios</translation>
        </message>
        <message>
            <source>Patrimonio</source>
            <translation>Wealth</translation>
        </message>
        <message>
            <source>Spese condivise</source>
            <translation>Shared expenses</translation>
        </message>
        <message>
            <source>Categorie</source>
            <translation>Categories</translation>
        </message>
        <message>
            <source>Regole</source>
            <translation>Rules</translation>
        </message>
        <message>
            <source>Lavoro</source>
            <translation>Work</translation>
        </message>
        <message>
            <source>Ogni giorno</source>
            <translation>Everyday</translation>
        </message>
        <message>
            <source>Pianificazione</source>
            <translation>Planning</translation>
        </message>
        <message>
            <source>Avvisi e persone</source>
            <translation>Alerts and people</translation>
        </message>
        <message>
            <source>Impostazioni dei dati</source>
            <translation>Data setup</translation>
        </message>
        <message>
            <source>Chiudi il messaggio</source>
            <translation>Close the message</translation>
        </message>
        <message>
            <source>Errore</source>
            <translation>Error</translation>
        </message>
        <message>
            <source>Stai provando Vantello con dati di esempio: le modifiche non vengono salvate.</source>
            <translation>You are trying Vantello with sample data: changes are not saved.</translation>
        </message>
        <message>
            <source>Esci dalla prova</source>
            <translation>Leave the demo</translation>
        </message>
        <message>
            <source>Schermate</source>
            <translation>Screens</translation>
        </message>
        <message>
            <source>Gestione in uso</source>
            <translation>Books in use</translation>
        </message>
        <message>
            <source>Di chi sono i conti mostrati</source>
            <translation>Whose accounts are shown</translation>
        </message>
        <message>
            <source>Gestione</source>
            <translation>Books</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;File</translation>
        </message>
        <message>
            <source>Nuova uscita…</source>
            <translation>New expense…</translation>
        </message>
        <message>
            <source>Nuova entrata…</source>
            <translation>New income…</translation>
        </message>
        <message>
            <source>Importa estratto conto…</source>
            <translation>Import statement…</translation>
        </message>
        <message>
            <source>Esporta il mese…</source>
            <translation>Export the month…</translation>
        </message>
        <message>
            <source>Esporta tutti i movimenti…</source>
            <translation>Export all movements…</translation>
        </message>
        <message>
            <source>Impostazioni…</source>
            <translation>Settings…</translation>
        </message>
        <message>
            <source>&amp;Modifica</source>
            <translation>&amp;Edit</translation>
        </message>
        <message>
            <source>Ripeti</source>
            <translation>Redo</translation>
        </message>
        <message>
            <source>Movimento eliminato.</source>
            <translation>Movement deleted.</translation>
        </message>
        <message>
            <source>Eliminati {n} movimenti.</source>
            <translation>{n} movements deleted.</translation>
        </message>
        <message>
            <source>&amp;Vista</source>
            <translation>&amp;View</translation>
        </message>
        <message>
            <source>&amp;Aiuto</source>
            <translation>&amp;Help</translation>
        </message>
        <message>
            <source>Informazioni su Vantello</source>
            <translation>About Vantello</translation>
        </message>
        <message>
            <source>Vantello {version}\nI tuoi conti, solo su questo computer.</source>
            <translation>Vantello {version}\nYour accounts, only on this computer.</translation>
        </message>
        <message>
            <source>Estratti conto (*.csv *.txt *.ofx *.qfx *.qif *.xml);;Tutti i file (*)</source>
            <translation>Statements (*.csv *.txt *.ofx *.qfx *.qif *.xml);;All files (*)</translation>
        </message>
        <message>
            <source>Esporta movimenti</source>
            <translation>Export movements</translation>
        </message>
        <message>
            <source>File CSV (*.csv)</source>
            <translation>CSV files (*.csv)</translation>
        </message>
        <message>
            <source>Movimenti esportati in «{name}».</source>
            <translation>Movements exported to “{name}”.</translation>
        </message>
        <message>
            <source>Messaggi</source>
            <translation>Messages</translation>
        </message>
        <message>
            <source>Questa schermata arriva con la prossima versione di Vantello.</source>
            <translation>This screen comes with the next version of Vantello.</translation>
        </message>
        <message>
            <source>I tuoi conti, solo su questo computer.</source>
            <translation>Your accounts, only on this computer.</translation>
        </message>
        <message>
            <source>Separatore</source>
            <translation>Separator</translation>
        </message>
        <message>
            <source>Riga delle intestazioni</source>
            <translation>Header row</translation>
        </message>
        <message>
            <source>Colonna della data</source>
            <translation>Date column</translation>
        </message>
        <message>
            <source>Formato della data</source>
            <translation>Date format</translation>
        </message>
        <message>
            <source>Importi</source>
            <translation>Amounts</translation>
        </message>
        <message>
            <source>Colonna dell'importo</source>
            <translation>Amount column</translation>
        </message>
        <message>
            <source>Colonna delle entrate</source>
            <translation>Income column</translation>
        </message>
        <message>
            <source>Colonna delle uscite</source>
            <translation>Expense column</translation>
        </message>
        <message>
            <source>Colonna della descrizione</source>
            <translation>Description column</translation>
        </message>
        <message>
            <source>Colonna della categoria</source>
            <translation>Category column</translation>
        </message>
    </context>
</TS>