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
            <source>Abbonamenti: {numero}, in tutto {anno} all'anno</source>
            <translation>Subscriptions: {numero}, {anno} a year in all</translation>
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
        <message>
            <source>Altre ({count})</source>
            <translation>Others ({count})</translation>
        </message>
        <message>
            <source>Saldo netto</source>
            <translation>Net</translation>
        </message>
        <message>
            <source>Totale</source>
            <translation>Total</translation>
        </message>
        <message>
            <source>Mese</source>
            <translation>Month</translation>
        </message>
        <message>
            <source>Uscite per categoria</source>
            <translation>Expenses by category</translation>
        </message>
        <message>
            <source>Legenda</source>
            <translation>Legend</translation>
        </message>
        <message>
            <source>Andamento degli ultimi dodici mesi</source>
            <translation>Last twelve months</translation>
        </message>
        <message>
            <source>Nessuna uscita in questo mese: qui compaiono le spese divise per categoria.</source>
            <translation>No expenses this month: this is where spending by category appears.</translation>
        </message>
        <message>
            <source>Uscite del mese: {amount}</source>
            <translation>Expenses this month: {amount}</translation>
        </message>
        <message>
            <source>Quasi al limite</source>
            <translation>Near the limit</translation>
        </message>
        <message>
            <source>Superato</source>
            <translation>Over budget</translation>
        </message>
        <message>
            <source>{spent} di {budget}</source>
            <translation>{spent} of {budget}</translation>
        </message>
        <message>
            <source>Superato di {amount}</source>
            <translation>Over by {amount}</translation>
        </message>
        <message>
            <source>Restano {amount}</source>
            <translation>{amount} left</translation>
        </message>
        <message>
            <source>Spese senza budget: {amount}</source>
            <translation>Spending without a budget: {amount}</translation>
        </message>
        <message>
            <source>Scrivi l'importo del budget, per esempio 250,00.</source>
            <translation>Type the budget amount, for example 250.00.</translation>
        </message>
        <message>
            <source>Il budget deve essere maggiore di zero.</source>
            <translation>The budget must be greater than zero.</translation>
        </message>
        <message>
            <source>Imposta budget</source>
            <translation>Set budget</translation>
        </message>
        <message>
            <source>Rimuovi budget</source>
            <translation>Remove budget</translation>
        </message>
        <message>
            <source>Modifica budget</source>
            <translation>Edit budget</translation>
        </message>
        <message>
            <source>Budget mensile</source>
            <translation>Monthly budget</translation>
        </message>
        <message>
            <source>Quanto vuoi spendere al massimo ogni mese in questa categoria?</source>
            <translation>How much do you want to spend at most each month in this category?</translation>
        </message>
        <message>
            <source>Nessun budget: fissa quanto spendere al massimo ogni mese in una categoria.</source>
            <translation>No budgets: set how much to spend at most each month in a category.</translation>
        </message>
        <message>
            <source>Imposta il primo budget</source>
            <translation>Set the first budget</translation>
        </message>
        <message>
            <source>A questo ritmo: {data}</source>
            <translation>At this pace: {data}</translation>
        </message>
        <message>
            <source>Abbonamento</source>
            <translation>Subscription</translation>
        </message>
        <message>
            <source>Addebiti che tornano ogni settimana, mese o anno, trovati tra i movimenti.</source>
            <translation>Charges that come back every week, month or year, found among your transactions.</translation>
        </message>
        <message>
            <source>Aggiungi versamento</source>
            <translation>Add contribution</translation>
        </message>
        <message>
            <source>Al mese</source>
            <translation>Per month</translation>
        </message>
        <message>
            <source>All'anno</source>
            <translation>Per year</translation>
        </message>
        <message>
            <source>Aumentato da {prima}</source>
            <translation>Up from {prima}</translation>
        </message>
        <message>
            <source>Avanzamento di {nome}</source>
            <translation>Progress of {nome}</translation>
        </message>
        <message>
            <source>Avvisa quando il saldo di un conto scende sotto la cifra. Lascia vuoto per non ricevere avvisi.</source>
            <translation>Warn when an account's balance falls below the amount. Leave empty for no alerts.</translation>
        </message>
        <message>
            <source>Avvisi di oggi</source>
            <translation>Today's alerts</translation>
        </message>
        <message>
            <source>Cambiato da {prima}</source>
            <translation>Changed from {prima}</translation>
        </message>
        <message>
            <source>Cifra da raggiungere</source>
            <translation>Target amount</translation>
        </message>
        <message>
            <source>Crea il primo obiettivo</source>
            <translation>Create your first goal</translation>
        </message>
        <message>
            <source>Crea un movimento ricorrente dal prossimo addebito</source>
            <translation>Create a recurring transaction from the next charge</translation>
        </message>
        <message>
            <source>Elimina obiettivo</source>
            <translation>Delete Goal</translation>
        </message>
        <message>
            <source>Elimina versamento</source>
            <translation>Delete Contribution</translation>
        </message>
        <message>
            <source>Elimina {nome}</source>
            <translation>Delete {nome}</translation>
        </message>
        <message>
            <source>Eliminare «{nome}» e i suoi versamenti?</source>
            <translation>Delete “{nome}” and its contributions?</translation>
        </message>
        <message>
            <source>Entro una data</source>
            <translation>By a date</translation>
        </message>
        <message>
            <source>Fine</source>
            <translation>Done</translation>
        </message>
        <message>
            <source>Frequenza</source>
            <translation>Frequency</translation>
        </message>
        <message>
            <source>Ignora abbonamento</source>
            <translation>Ignore Subscription</translation>
        </message>
        <message>
            <source>Invariato</source>
            <translation>Unchanged</translation>
        </message>
        <message>
            <source>Mancano {cifra}</source>
            <translation>{cifra} to go</translation>
        </message>
        <message>
            <source>Mese diretto verso un saldo negativo</source>
            <translation>A month on course for a negative balance</translation>
        </message>
        <message>
            <source>Modifica obiettivo</source>
            <translation>Edit Goal</translation>
        </message>
        <message>
            <source>Modifica {nome}</source>
            <translation>Edit {nome}</translation>
        </message>
        <message>
            <source>Nascondi</source>
            <translation>Dismiss</translation>
        </message>
        <message>
            <source>Nascondi avviso: {titolo}</source>
            <translation>Dismiss alert: {titolo}</translation>
        </message>
        <message>
            <source>Nessun abbonamento trovato. Compariranno qui gli addebiti che si ripetono ogni settimana, mese o anno.</source>
            <translation>No subscriptions found. Charges that repeat every week, month or year will appear here.</translation>
        </message>
        <message>
            <source>Nessun avviso. Qui compaiono le spese insolite, i possibili addebiti doppi, i saldi sotto la soglia e i mesi diretti verso un saldo negativo.</source>
            <translation>No alerts. Unusual spending, possible duplicate charges, balances below their threshold and months heading for a negative balance appear here.</translation>
        </message>
        <message>
            <source>Nessun obiettivo.</source>
            <translation>No goals.</translation>
        </message>
        <message>
            <source>Nessun versamento ancora</source>
            <translation>No contributions yet</translation>
        </message>
        <message>
            <source>Nessun versamento registrato.</source>
            <translation>No contributions recorded.</translation>
        </message>
        <message>
            <source>Non mostrarlo più tra gli abbonamenti</source>
            <translation>Don't show it among subscriptions again</translation>
        </message>
        <message>
            <source>Non segnalare più questa situazione</source>
            <translation>Don't report this situation again</translation>
        </message>
        <message>
            <source>Non è un abbonamento</source>
            <translation>Not a Subscription</translation>
        </message>
        <message>
            <source>Notifica i nuovi avvisi sul desktop</source>
            <translation>Notify new alerts on the desktop</translation>
        </message>
        <message>
            <source>Nuovo obiettivo</source>
            <translation>New Goal</translation>
        </message>
        <message>
            <source>Nuovo obiettivo…</source>
            <translation>New Goal…</translation>
        </message>
        <message>
            <source>Ogni anno</source>
            <translation>Every year</translation>
        </message>
        <message>
            <source>Ogni mese</source>
            <translation>Every month</translation>
        </message>
        <message>
            <source>Ogni settimana</source>
            <translation>Every week</translation>
        </message>
        <message>
            <source>Per esempio: Vacanze</source>
            <translation>For example: Holiday</translation>
        </message>
        <message>
            <source>Possibili addebiti doppi</source>
            <translation>Possible duplicate charges</translation>
        </message>
        <message>
            <source>Prelievo</source>
            <translation>Withdrawal</translation>
        </message>
        <message>
            <source>Prelievo dall'obiettivo</source>
            <translation>Withdraw from Goal</translation>
        </message>
        <message>
            <source>Prezzo</source>
            <translation>Price</translation>
        </message>
        <message>
            <source>Prossimo</source>
            <translation>Next</translation>
        </message>
        <message>
            <source>Quali avvisi</source>
            <translation>Which alerts</translation>
        </message>
        <message>
            <source>Rendi ricorrente</source>
            <translation>Make Recurring</translation>
        </message>
        <message>
            <source>Rimuovi versamento</source>
            <translation>Remove contribution</translation>
        </message>
        <message>
            <source>Ritmo attuale: {cifra} al mese</source>
            <translation>Current pace: {cifra} a month</translation>
        </message>
        <message>
            <source>Saldo di un conto sotto la soglia</source>
            <translation>An account's balance below its threshold</translation>
        </message>
        <message>
            <source>Scadenza</source>
            <translation>Deadline</translation>
        </message>
        <message>
            <source>Scadenza: {data}</source>
            <translation>Deadline: {data}</translation>
        </message>
        <message>
            <source>Servono {cifra} al mese</source>
            <translation>{cifra} a month needed</translation>
        </message>
        <message>
            <source>Simbolo</source>
            <translation>Symbol</translation>
        </message>
        <message>
            <source>Soglia di saldo basso</source>
            <translation>Low-Balance Threshold</translation>
        </message>
        <message>
            <source>Soglia di saldo basso di {conto}</source>
            <translation>Low-balance threshold of {conto}</translation>
        </message>
        <message>
            <source>Soglie di saldo basso</source>
            <translation>Low-balance thresholds</translation>
        </message>
        <message>
            <source>Spese insolite per una categoria</source>
            <translation>Unusual spending in a category</translation>
        </message>
        <message>
            <source>Ultimo addebito</source>
            <translation>Latest charge</translation>
        </message>
        <message>
            <source>Versamenti di {nome}</source>
            <translation>Contributions to {nome}</translation>
        </message>
        <message>
            <source>Versamenti registrati</source>
            <translation>Recorded contributions</translation>
        </message>
        <message>
            <source>Versamenti: {nome}</source>
            <translation>Contributions: {nome}</translation>
        </message>
        <message>
            <source>Versamenti…</source>
            <translation>Contributions…</translation>
        </message>
        <message>
            <source>Versamento</source>
            <translation>Deposit</translation>
        </message>
        <message>
            <source>Versamento sull'obiettivo</source>
            <translation>Deposit to Goal</translation>
        </message>
        <message>
            <source>{messi} di {obiettivo}</source>
            <translation>{messi} of {obiettivo}</translation>
        </message>
        <message>
            <source>{numero} addebiti, l'ultimo il {data}</source>
            <translation>{numero} charges, the latest on {data}</translation>
        </message>
        <message>
            <source>«{nome}» non comparirà più tra gli abbonamenti.</source>
            <translation>“{nome}” will no longer appear among subscriptions.</translation>
        </message>
        <message>
            <source>«{nome}» è ora un movimento ricorrente.</source>
            <translation>“{nome}” is now a recurring transaction.</translation>
        </message>
        <message>
            <source>Aggiungi movimento ricorrente</source>
            <translation>Add recurring movement</translation>
        </message>
        <message>
            <source>Aggiungi regola</source>
            <translation>Add rule</translation>
        </message>
        <message>
            <source>Aggiungi un periodo senza lavoro</source>
            <translation>Add a period without work</translation>
        </message>
        <message>
            <source>Al lavoro: nessun periodo senza lavoro in corso.</source>
            <translation>Working: no period without work in progress.</translation>
        </message>
        <message>
            <source>Andrebbe in «{categoria}».</source>
            <translation>It would go to “{categoria}”.</translation>
        </message>
        <message>
            <source>Categoria risultante</source>
            <translation>Resulting category</translation>
        </message>
        <message>
            <source>Crea il primo movimento ricorrente</source>
            <translation>Create the first recurring movement</translation>
        </message>
        <message>
            <source>Crea la prima regola</source>
            <translation>Create the first rule</translation>
        </message>
        <message>
            <source>Dal</source>
            <translation>From</translation>
        </message>
        <message>
            <source>Dal conto</source>
            <translation>From account</translation>
        </message>
        <message>
            <source>Elimina movimento ricorrente</source>
            <translation>Delete recurring movement</translation>
        </message>
        <message>
            <source>Elimina regola</source>
            <translation>Delete rule</translation>
        </message>
        <message>
            <source>Eliminare il movimento ricorrente?</source>
            <translation>Delete the recurring movement?</translation>
        </message>
        <message>
            <source>Eliminare il periodo senza lavoro?</source>
            <translation>Delete the period without work?</translation>
        </message>
        <message>
            <source>Eliminare il periodo? Gli stipendi ricorrenti di quei giorni potranno essere registrati.</source>
            <translation>Delete the period? Recurring salaries on those days may then be recorded.</translation>
        </message>
        <message>
            <source>Eliminare la regola «{testo}»? I movimenti già archiviati restano nella loro categoria.</source>
            <translation>Delete the rule “{testo}”? Movements already filed stay in their category.</translation>
        </message>
        <message>
            <source>Eliminare la regola?</source>
            <translation>Delete the rule?</translation>
        </message>
        <message>
            <source>Eliminare «{nome}»? I movimenti già registrati restano.</source>
            <translation>Delete “{nome}”? Movements already recorded stay.</translation>
        </message>
        <message>
            <source>Fino al</source>
            <translation>Until</translation>
        </message>
        <message>
            <source>Giù</source>
            <translation>Down</translation>
        </message>
        <message>
            <source>Ho ripreso a lavorare</source>
            <translation>I'm back at work</translation>
        </message>
        <message>
            <source>I movimenti la cui nota contiene questo testo (maiuscole e accenti non contano) vanno nella categoria scelta.</source>
            <translation>Movements whose note contains this text (case and accents don't matter) go to the chosen category.</translation>
        </message>
        <message>
            <source>Il periodo è finito</source>
            <translation>The period has ended</translation>
        </message>
        <message>
            <source>In disoccupazione dal {data}</source>
            <translation>Unemployed since {data}</translation>
        </message>
        <message>
            <source>Modifica</source>
            <translation>Edit</translation>
        </message>
        <message>
            <source>Modifica movimento ricorrente</source>
            <translation>Edit recurring movement</translation>
        </message>
        <message>
            <source>Modifica periodo senza lavoro</source>
            <translation>Edit period without work</translation>
        </message>
        <message>
            <source>Modifica regola</source>
            <translation>Edit rule</translation>
        </message>
        <message>
            <source>Movimento</source>
            <translation>Movement</translation>
        </message>
        <message>
            <source>N.</source>
            <translation>No.</translation>
        </message>
        <message>
            <source>Nessun movimento ricorrente. Affitto, stipendio e abbonamenti qui si registrano da soli.</source>
            <translation>No recurring movements. Rent, salary and subscriptions added here record themselves.</translation>
        </message>
        <message>
            <source>Nessun periodo senza lavoro. Se resti senza lavoro, segnalalo qui: gli stipendi ricorrenti si fermano.</source>
            <translation>No periods without work. If you are out of work, note it here: recurring salaries stop.</translation>
        </message>
        <message>
            <source>Nessun promemoria in arrivo: lo stipendio è registrato o sei senza lavoro.</source>
            <translation>No reminder coming up: the salary is recorded or you are out of work.</translation>
        </message>
        <message>
            <source>Nessuna regola si applica: resterebbe in «{categoria}».</source>
            <translation>No rule applies: it would stay in “{categoria}”.</translation>
        </message>
        <message>
            <source>Nessuna regola. Con una regola i movimenti con «Esselunga» nella nota vanno da soli in Spesa.</source>
            <translation>No rules. With a rule, movements with “Esselunga” in the note go to Groceries by themselves.</translation>
        </message>
        <message>
            <source>Nota da provare</source>
            <translation>Note to try</translation>
        </message>
        <message>
            <source>Nuova regola</source>
            <translation>New rule</translation>
        </message>
        <message>
            <source>Nuova regola…</source>
            <translation>New rule…</translation>
        </message>
        <message>
            <source>Nuovo movimento ricorrente</source>
            <translation>New recurring movement</translation>
        </message>
        <message>
            <source>Nuovo movimento ricorrente…</source>
            <translation>New recurring movement…</translation>
        </message>
        <message>
            <source>Nuovo periodo senza lavoro</source>
            <translation>New period without work</translation>
        </message>
        <message>
            <source>Nuovo periodo…</source>
            <translation>New period…</translation>
        </message>
        <message>
            <source>Periodo senza lavoro in corso</source>
            <translation>Period without work in progress</translation>
        </message>
        <message>
            <source>Primo giorno senza lavoro</source>
            <translation>First day without work</translation>
        </message>
        <message>
            <source>Prossima volta</source>
            <translation>Next time</translation>
        </message>
        <message>
            <source>Prossimo promemoria</source>
            <translation>Next reminder</translation>
        </message>
        <message>
            <source>Prova una nota</source>
            <translation>Try a note</translation>
        </message>
        <message>
            <source>Scrivi la nota di un movimento</source>
            <translation>Type a movement's note</translation>
        </message>
        <message>
            <source>Scrivi una nota per vedere in quale categoria andrebbe.</source>
            <translation>Type a note to see which category it would go to.</translation>
        </message>
        <message>
            <source>Se la nota contiene</source>
            <translation>If the note contains</translation>
        </message>
        <message>
            <source>Senza ultimo giorno il periodo è in corso: gli stipendi ricorrenti si fermano finché non lo chiudi.</source>
            <translation>Without a last day the period is in progress: recurring salaries stop until you close it.</translation>
        </message>
        <message>
            <source>Sposta giù</source>
            <translation>Move down</translation>
        </message>
        <message>
            <source>Sposta regola</source>
            <translation>Move rule</translation>
        </message>
        <message>
            <source>Sposta su</source>
            <translation>Move up</translation>
        </message>
        <message>
            <source>Sposta su: la regola vale prima delle altre</source>
            <translation>Move up: the rule applies before the others</translation>
        </message>
        <message>
            <source>Stato delle notifiche</source>
            <translation>Notification state</translation>
        </message>
        <message>
            <source>Stipendio di questo mese</source>
            <translation>This month's salary</translation>
        </message>
        <message>
            <source>Su</source>
            <translation>Up</translation>
        </message>
        <message>
            <source>Terminato</source>
            <translation>Ended</translation>
        </message>
        <message>
            <source>Ultima data</source>
            <translation>Last date</translation>
        </message>
        <message>
            <source>Ultimo giorno senza lavoro</source>
            <translation>Last day without work</translation>
        </message>
        <message>
            <source>Ultimo stipendio</source>
            <translation>Last salary</translation>
        </message>
        <message>
            <source>Vale la prima regola della lista che trova il suo testo nella nota del movimento.</source>
            <translation>The first rule in the list whose text is found in the movement's note applies.</translation>
        </message>
        <message>
            <source>Vantello li registra da solo quando arriva la loro data.</source>
            <translation>Vantello records them by itself when their date comes.</translation>
        </message>
        <message>
            <source>per esempio Esselunga</source>
            <translation>for example Esselunga</translation>
        </message>
        <message>
            <source>{categoria} (entrata)</source>
            <translation>{categoria} (income)</translation>
        </message>
        <message>
            <source>L'importo minimo non è un importo valido.</source>
            <translation>The minimum amount is not a valid amount.</translation>
        </message>
        <message>
            <source>L'importo massimo non è un importo valido.</source>
            <translation>The maximum amount is not a valid amount.</translation>
        </message>
        <message>
            <source>L'importo minimo supera quello massimo.</source>
            <translation>The minimum amount is above the maximum.</translation>
        </message>
        <message>
            <source>La data iniziale viene dopo quella finale.</source>
            <translation>The start date comes after the end date.</translation>
        </message>
        <message>
            <source>con allegati</source>
            <translation>with attachments</translation>
        </message>
        <message>
            <source>Salva ricerca</source>
            <translation>Save Search</translation>
        </message>
        <message>
            <source>Rinomina ricerca</source>
            <translation>Rename Search</translation>
        </message>
        <message>
            <source>Elimina ricerca</source>
            <translation>Delete Search</translation>
        </message>
        <message>
            <source>Nome della ricerca</source>
            <translation>Search name</translation>
        </message>
        <message>
            <source>Per esempio: Spese per l'auto</source>
            <translation>For example: Car expenses</translation>
        </message>
        <message>
            <source>Cerca nelle note, nelle categorie o un importo</source>
            <translation>Search notes, categories or an amount</translation>
        </message>
        <message>
            <source>Salva ricerca…</source>
            <translation>Save Search…</translation>
        </message>
        <message>
            <source>Esporta CSV…</source>
            <translation>Export CSV…</translation>
        </message>
        <message>
            <source>Sempre</source>
            <translation>Any time</translation>
        </message>
        <message>
            <source>Questo mese</source>
            <translation>This month</translation>
        </message>
        <message>
            <source>Quest'anno</source>
            <translation>This year</translation>
        </message>
        <message>
            <source>Ultimi 12 mesi</source>
            <translation>Last 12 months</translation>
        </message>
        <message>
            <source>Dal… al…</source>
            <translation>From… to…</translation>
        </message>
        <message>
            <source>Entrate e uscite</source>
            <translation>Income and expenses</translation>
        </message>
        <message>
            <source>Solo uscite</source>
            <translation>Expenses only</translation>
        </message>
        <message>
            <source>Solo entrate</source>
            <translation>Income only</translation>
        </message>
        <message>
            <source>nessun limite</source>
            <translation>no limit</translation>
        </message>
        <message>
            <source>Solo con allegati</source>
            <translation>Only with attachments</translation>
        </message>
        <message>
            <source>Azzera filtri</source>
            <translation>Clear Filters</translation>
        </message>
        <message>
            <source>Periodo</source>
            <translation>Period</translation>
        </message>
        <message>
            <source>Al</source>
            <translation>To</translation>
        </message>
        <message>
            <source>Importo da</source>
            <translation>Amount from</translation>
        </message>
        <message>
            <source>a</source>
            <translation>to</translation>
        </message>
        <message>
            <source>Importo minimo</source>
            <translation>Minimum amount</translation>
        </message>
        <message>
            <source>Importo massimo</source>
            <translation>Maximum amount</translation>
        </message>
        <message>
            <source>Risultati della ricerca</source>
            <translation>Search results</translation>
        </message>
        <message>
            <source>Tutte le categorie</source>
            <translation>All categories</translation>
        </message>
        <message>
            <source>{count} categorie</source>
            <translation>{count} categories</translation>
        </message>
        <message>
            <source>1 movimento</source>
            <translation>1 movement</translation>
        </message>
        <message>
            <source>{count} movimenti</source>
            <translation>{count} movements</translation>
        </message>
        <message>
            <source>Entrate: {amount}</source>
            <translation>Income: {amount}</translation>
        </message>
        <message>
            <source>Uscite: {amount}</source>
            <translation>Expenses: {amount}</translation>
        </message>
        <message>
            <source>Saldo: {amount}</source>
            <translation>Balance: {amount}</translation>
        </message>
        <message>
            <source>Non c'è ancora nessun movimento da cercare: aggiungi il primo dalla schermata Movimenti.</source>
            <translation>There are no movements to search yet: add the first one from the Movements screen.</translation>
        </message>
        <message>
            <source>Nessun movimento corrisponde a queste condizioni. Togline qualcuna per vederne di più.</source>
            <translation>No movement meets these conditions. Remove some to see more.</translation>
        </message>
        <message>
            <source>Ricerca Vantello.csv</source>
            <translation>Vantello search.csv</translation>
        </message>
        <message>
            <source>Esporta i risultati</source>
            <translation>Export the Results</translation>
        </message>
        <message>
            <source>{number} %</source>
            <translation>{number}%</translation>
        </message>
        <message>
            <source>Spesa in {category}: {percent}</source>
            <translation>Spending on {category}: {percent}</translation>
        </message>
        <message>
            <source>Entrate: {percent}</source>
            <translation>Income: {percent}</translation>
        </message>
        <message>
            <source>Spesa fissa in più: {amount} al mese</source>
            <translation>Extra fixed expense: {amount} a month</translation>
        </message>
        <message>
            <source>Già raggiunto</source>
            <translation>Already reached</translation>
        </message>
        <message>
            <source>Non a questo ritmo</source>
            <translation>Not at this pace</translation>
        </message>
        <message>
            <source>{date} (prima)</source>
            <translation>{date} (sooner)</translation>
        </message>
        <message>
            <source>{date} (dopo)</source>
            <translation>{date} (later)</translation>
        </message>
        <message>
            <source>{goal}: senza lo scenario {baseline}, con lo scenario {scenario}</source>
            <translation>{goal}: without the scenario {baseline}, with the scenario {scenario}</translation>
        </message>
        <message>
            <source>Obiettivo</source>
            <translation>Goal</translation>
        </message>
        <message>
            <source>Senza lo scenario</source>
            <translation>Without the scenario</translation>
        </message>
        <message>
            <source>Con lo scenario</source>
            <translation>With the scenario</translation>
        </message>
        <message>
            <source>Risparmio al mese oggi</source>
            <translation>Monthly savings today</translation>
        </message>
        <message>
            <source>Entrate {income}, uscite {expenses}: media di {months} mesi</source>
            <translation>Income {income}, expenses {expenses}: average of {months} months</translation>
        </message>
        <message>
            <source>Risparmio al mese con lo scenario</source>
            <translation>Monthly savings with the scenario</translation>
        </message>
        <message>
            <source>Entrate {income}, uscite {expenses}</source>
            <translation>Income {income}, expenses {expenses}</translation>
        </message>
        <message>
            <source>Differenza in 12 mesi</source>
            <translation>Difference in 12 months</translation>
        </message>
        <message>
            <source>{scenario} invece di {baseline}</source>
            <translation>{scenario} instead of {baseline}</translation>
        </message>
        <message>
            <source>Scrivi la spesa in più di ogni mese, per esempio 50,00.</source>
            <translation>Type the extra expense of each month, for example 50.00.</translation>
        </message>
        <message>
            <source>Scegli una categoria di spesa.</source>
            <translation>Choose an expense category.</translation>
        </message>
        <message>
            <source>Scrivi una percentuale diversa da zero, per esempio −10 per spendere il 10 % in meno.</source>
            <translation>Type a percentage other than zero, for example −10 to spend 10% less.</translation>
        </message>
        <message>
            <source>Non si può togliere più del 100 %.</source>
            <translation>You cannot take away more than 100%.</translation>
        </message>
        <message>
            <source>E se…? Parti dalla media degli ultimi tre mesi completi, cambiala qui sotto e guarda cosa succede ai risparmi dei prossimi dodici mesi. Le modifiche non toccano i tuoi movimenti.</source>
            <translation>What if…? Start from the average of the last three complete months, change it below and see what happens to the savings of the next twelve months. The changes do not touch your movements.</translation>
        </message>
        <message>
            <source>Modifiche</source>
            <translation>Changes</translation>
        </message>
        <message>
            <source>Che cosa cambia</source>
            <translation>What changes</translation>
        </message>
        <message>
            <source>Spesa in una categoria</source>
            <translation>Spending in a category</translation>
        </message>
        <message>
            <source>Una spesa fissa in più</source>
            <translation>An extra fixed expense</translation>
        </message>
        <message>
            <source>Di quanto</source>
            <translation>By how much</translation>
        </message>
        <message>
            <source>Scenario in prova</source>
            <translation>Scenario being tried</translation>
        </message>
        <message>
            <source>Modifiche dello scenario</source>
            <translation>Changes of the scenario</translation>
        </message>
        <message>
            <source>Nessuna modifica: le due linee coincidono. Aggiungine una qui sopra.</source>
            <translation>No changes: the two lines are the same. Add one above.</translation>
        </message>
        <message>
            <source>Togli tutte</source>
            <translation>Remove All</translation>
        </message>
        <message>
            <source>In tutto {year} l'anno, in media {month} al mese.</source>
            <translation>{year} a year in all, {month} a month on average.</translation>
        </message>
        <message>
            <source>Rinomina persona</source>
            <translation>Rename Person</translation>
        </message>
        <message>
            <source>Risparmi accumulati</source>
            <translation>Savings accumulated</translation>
        </message>
        <message>
            <source>%.0f €</source>
            <translation>€%.0f</translation>
        </message>
        <message>
            <source>Proiezione dei risparmi nei prossimi dodici mesi</source>
            <translation>Projection of the savings over the next twelve months</translation>
        </message>
        <message>
            <source>Quando raggiungi gli obiettivi</source>
            <translation>When you reach your goals</translation>
        </message>
        <message>
            <source>Nessun obiettivo di risparmio: creane uno nella schermata Obiettivi per vedere quando lo raggiungeresti.</source>
            <translation>No savings goals: create one in the Goals screen to see when you would reach it.</translation>
        </message>
        <message>
            <source>Per immaginare uno scenario serve almeno un mese completo di movimenti. Torna qui dopo aver registrato le entrate e le uscite di un mese.</source>
            <translation>A scenario needs at least one complete month of movements. Come back after recording a month's income and expenses.</translation>
        </message>
        <message>
            <source>%</source>
            <translation>%</translation>
        </message>
        <message>
            <source>€ al mese</source>
            <translation>€ a month</translation>
        </message>
        <message>
            <source>−10 per il 10 % in meno</source>
            <translation>−10 for 10% less</translation>
        </message>
        <message>
            <source>50,00</source>
            <translation>50.00</translation>
        </message>
        <message>
            <source>Percentuale</source>
            <translation>Percentage</translation>
        </message>
        <message>
            <source>Importo al mese</source>
            <translation>Amount a month</translation>
        </message>
        <message>
            <source>{month}: {baseline} senza, {scenario} con lo scenario</source>
            <translation>{month}: {baseline} without, {scenario} with the scenario</translation>
        </message>
        <message>
            <source>Etichetta</source>
            <translation>Tag</translation>
        </message>
        <message>
            <source>Carrello</source>
            <translation>Cart</translation>
        </message>
        <message>
            <source>Energia</source>
            <translation>Energy</translation>
        </message>
        <message>
            <source>Carburante</source>
            <translation>Fuel</translation>
        </message>
        <message>
            <source>Autobus</source>
            <translation>Bus</translation>
        </message>
        <message>
            <source>Bicicletta</source>
            <translation>Bicycle</translation>
        </message>
        <message>
            <source>Aereo</source>
            <translation>Aeroplane</translation>
        </message>
        <message>
            <source>Posate</source>
            <translation>Cutlery</translation>
        </message>
        <message>
            <source>Teatro</source>
            <translation>Theatre</translation>
        </message>
        <message>
            <source>Musica</source>
            <translation>Music</translation>
        </message>
        <message>
            <source>Televisione</source>
            <translation>Television</translation>
        </message>
        <message>
            <source>Videogiochi</source>
            <translation>Video games</translation>
        </message>
        <message>
            <source>Libro</source>
            <translation>Book</translation>
        </message>
        <message>
            <source>Scuola</source>
            <translation>School</translation>
        </message>
        <message>
            <source>Kit medico</source>
            <translation>First aid kit</translation>
        </message>
        <message>
            <source>Medicine</source>
            <translation>Medicines</translation>
        </message>
        <message>
            <source>Maglietta</source>
            <translation>T-shirt</translation>
        </message>
        <message>
            <source>Regalo</source>
            <translation>Gift</translation>
        </message>
        <message>
            <source>Cuore</source>
            <translation>Heart</translation>
        </message>
        <message>
            <source>Zampa</source>
            <translation>Paw print</translation>
        </message>
        <message>
            <source>Telefono</source>
            <translation>Phone</translation>
        </message>
        <message>
            <source>Internet</source>
            <translation>Internet</translation>
        </message>
        <message>
            <source>Valigetta</source>
            <translation>Briefcase</translation>
        </message>
        <message>
            <source>Banconota</source>
            <translation>Banknote</translation>
        </message>
        <message>
            <source>Euro</source>
            <translation>Euro</translation>
        </message>
        <message>
            <source>Altro</source>
            <translation>Other</translation>
        </message>
        <message>
            <source>Banca</source>
            <translation>Bank</translation>
        </message>
        <message>
            <source>Carta</source>
            <translation>Card</translation>
        </message>
        <message>
            <source>Contanti</source>
            <translation>Cash</translation>
        </message>
        <message>
            <source>Portafoglio</source>
            <translation>Wallet</translation>
        </message>
        <message>
            <source>predefinita</source>
            <translation>built-in</translation>
        </message>
        <message>
            <source>personale</source>
            <translation>your own</translation>
        </message>
        <message>
            <source>Aggiungi categoria</source>
            <translation>Add Category</translation>
        </message>
        <message>
            <source>Modifica categoria</source>
            <translation>Edit Category</translation>
        </message>
        <message>
            <source>Elimina categoria</source>
            <translation>Delete Category</translation>
        </message>
        <message>
            <source>Nuova categoria</source>
            <translation>New Category</translation>
        </message>
        <message>
            <source>Nome della categoria</source>
            <translation>Category name</translation>
        </message>
        <message>
            <source>Icona della categoria</source>
            <translation>Category icon</translation>
        </message>
        <message>
            <source>Icona attuale</source>
            <translation>Current icon</translation>
        </message>
        <message>
            <source>Tipo di categoria</source>
            <translation>Category type</translation>
        </message>
        <message>
            <source>Icona</source>
            <translation>Icon</translation>
        </message>
        <message>
            <source>Per</source>
            <translation>For</translation>
        </message>
        <message>
            <source>Le categorie predefinite non si possono modificare né eliminare; crea le tue con «Nuova categoria».</source>
            <translation>Built-in categories cannot be changed or deleted; create your own with “New Category”.</translation>
        </message>
        <message>
            <source>Categorie di uscita</source>
            <translation>Expense categories</translation>
        </message>
        <message>
            <source>Categorie di entrata</source>
            <translation>Income categories</translation>
        </message>
        <message>
            <source>Nessun movimento usa questa categoria.</source>
            <translation>No movement uses this category.</translation>
        </message>
        <message>
            <source>1 movimento passerà alla categoria «{fallback}».</source>
            <translation>1 movement will move to the category “{fallback}”.</translation>
        </message>
        <message>
            <source>{count} movimenti passeranno alla categoria «{fallback}».</source>
            <translation>{count} movements will move to the category “{fallback}”.</translation>
        </message>
        <message>
            <source>Eliminare la categoria «{name}»?</source>
            <translation>Delete the category “{name}”?</translation>
        </message>
        <message>
            <source>Categoria «{name}» eliminata.</source>
            <translation>Category “{name}” deleted.</translation>
        </message>
        <message>
            <source>Saldo {amount}</source>
            <translation>Balance {amount}</translation>
        </message>
        <message>
            <source>nessuna</source>
            <translation>none</translation>
        </message>
        <message>
            <source>Saldo</source>
            <translation>Balance</translation>
        </message>
        <message>
            <source>Avviso sotto</source>
            <translation>Warn below</translation>
        </message>
        <message>
            <source>Il saldo iniziale non è un importo valido.</source>
            <translation>The opening balance is not a valid amount.</translation>
        </message>
        <message>
            <source>La soglia di saldo basso non è un importo valido.</source>
            <translation>The low-balance threshold is not a valid amount.</translation>
        </message>
        <message>
            <source>Aggiungi conto</source>
            <translation>Add Account</translation>
        </message>
        <message>
            <source>Modifica conto</source>
            <translation>Edit Account</translation>
        </message>
        <message>
            <source>Elimina conto</source>
            <translation>Delete Account</translation>
        </message>
        <message>
            <source>Nuovo conto</source>
            <translation>New Account</translation>
        </message>
        <message>
            <source>Nome del conto</source>
            <translation>Account name</translation>
        </message>
        <message>
            <source>Icona del conto</source>
            <translation>Account icon</translation>
        </message>
        <message>
            <source>Saldo iniziale</source>
            <translation>Opening balance</translation>
        </message>
        <message>
            <source>Avvisami quando il saldo scende sotto</source>
            <translation>Warn me when the balance falls below</translation>
        </message>
        <message>
            <source>nessun avviso</source>
            <translation>no warning</translation>
        </message>
        <message>
            <source>Importi come «1.250,00». Lascia vuota la soglia per non ricevere avvisi.</source>
            <translation>Amounts like “1,250.00”. Leave the threshold empty for no warnings.</translation>
        </message>
        <message>
            <source>Nessun movimento usa questo conto.</source>
            <translation>No movement uses this account.</translation>
        </message>
        <message>
            <source>1 movimento passerà al conto principale.</source>
            <translation>1 movement will move to the main account.</translation>
        </message>
        <message>
            <source>{count} movimenti passeranno al conto principale.</source>
            <translation>{count} movements will move to the main account.</translation>
        </message>
        <message>
            <source>1 giroconto con il conto principale diventerà una normale uscita.</source>
            <translation>1 transfer with the main account will become an ordinary expense.</translation>
        </message>
        <message>
            <source>{count} giroconti con il conto principale diventeranno normali uscite.</source>
            <translation>{count} transfers with the main account will become ordinary expenses.</translation>
        </message>
        <message>
            <source>Il saldo di oggi di ogni conto: saldo iniziale più entrate, meno uscite, più e meno i giroconti. Il conto principale non si può eliminare.</source>
            <translation>Each account's balance today: opening balance plus income, minus expenses, plus and minus transfers. The main account cannot be deleted.</translation>
        </message>
        <message>
            <source>Eliminare il conto «{name}»?</source>
            <translation>Delete the account “{name}”?</translation>
        </message>
        <message>
            <source>Conto «{name}» eliminato.</source>
            <translation>Account “{name}” deleted.</translation>
        </message>
        <message>
            <source>Conto «{name}» eliminato: 1 movimento spostato sul conto principale.</source>
            <translation>Account “{name}” deleted: 1 movement moved to the main account.</translation>
        </message>
        <message>
            <source>Conto «{name}» eliminato: {count} movimenti spostati sul conto principale.</source>
            <translation>Account “{name}” deleted: {count} movements moved to the main account.</translation>
        </message>
        <message>
            <source>3,5</source>
            <translation>3.5</translation>
        </message>
        <message>
            <source>Aggiorna valore</source>
            <translation>Update value</translation>
        </message>
        <message>
            <source>Aggiorna valore di {name}</source>
            <translation>Update the value of {name}</translation>
        </message>
        <message>
            <source>Aggiorna valore…</source>
            <translation>Update Value…</translation>
        </message>
        <message>
            <source>Aggiungi persona</source>
            <translation>Add person</translation>
        </message>
        <message>
            <source>Aggiungi persona…</source>
            <translation>Add Person…</translation>
        </message>
        <message>
            <source>Anche la rata ricorrente sarà eliminata; i movimenti già registrati restano.</source>
            <translation>Its recurring instalment is deleted too; the movements already recorded stay.</translation>
        </message>
        <message>
            <source>Bene</source>
            <translation>Asset</translation>
        </message>
        <message>
            <source>Capitale</source>
            <translation>Capital</translation>
        </message>
        <message>
            <source>Capitale da restituire</source>
            <translation>Capital still owed</translation>
        </message>
        <message>
            <source>Categoria della rata</source>
            <translation>Category of the instalment</translation>
        </message>
        <message>
            <source>Chiudi</source>
            <translation>Close</translation>
        </message>
        <message>
            <source>Conti {accounts} · Beni {assets} · Debiti {debts}</source>
            <translation>Accounts {accounts} · Assets {assets} · Debts {debts}</translation>
        </message>
        <message>
            <source>Conto da cui si paga</source>
            <translation>Account it is paid from</translation>
        </message>
        <message>
            <source>Dal giorno</source>
            <translation>From</translation>
        </message>
        <message>
            <source>Devi {amount}</source>
            <translation>You owe {amount}</translation>
        </message>
        <message>
            <source>Effetto sul saldo</source>
            <translation>Effect on the balance</translation>
        </message>
        <message>
            <source>Elimina bene</source>
            <translation>Delete asset</translation>
        </message>
        <message>
            <source>Elimina persona</source>
            <translation>Delete person</translation>
        </message>
        <message>
            <source>Elimina prestito</source>
            <translation>Delete loan</translation>
        </message>
        <message>
            <source>Eliminare il bene «{name}»?</source>
            <translation>Delete the asset “{name}”?</translation>
        </message>
        <message>
            <source>Eliminare il prestito «{name}»?</source>
            <translation>Delete the loan “{name}”?</translation>
        </message>
        <message>
            <source>Eliminare {name}?</source>
            <translation>Delete {name}?</translation>
        </message>
        <message>
            <source>Importo prestato</source>
            <translation>Amount borrowed</translation>
        </message>
        <message>
            <source>In pari</source>
            <translation>Settled up</translation>
        </message>
        <message>
            <source>Interessi</source>
            <translation>Interest</translation>
        </message>
        <message>
            <source>Le sue quote escono dai movimenti e i saldi registrati con questa persona sono eliminati.</source>
            <translation>Their shares leave the movements and the settlements recorded with this person are deleted.</translation>
        </message>
        <message>
            <source>Le sue valutazioni non conteranno più nel patrimonio.</source>
            <translation>Its valuations will no longer count in your net worth.</translation>
        </message>
        <message>
            <source>Mai</source>
            <translation>Never</translation>
        </message>
        <message>
            <source>Modifica bene</source>
            <translation>Edit asset</translation>
        </message>
        <message>
            <source>Modifica prestito</source>
            <translation>Edit loan</translation>
        </message>
        <message>
            <source>Nei movimenti</source>
            <translation>In movements</translation>
        </message>
        <message>
            <source>Nessun bene. Aggiungi la casa, l'auto o gli investimenti per contarli nel patrimonio.</source>
            <translation>No assets. Add your home, car or investments to count them in your net worth.</translation>
        </message>
        <message>
            <source>Nessun prestito. Aggiungi un mutuo o un finanziamento per seguirne le rate.</source>
            <translation>No loans. Add a mortgage or a loan to follow its instalments.</translation>
        </message>
        <message>
            <source>Nessuna persona. Aggiungi chi divide le spese con te per sapere chi deve a chi.</source>
            <translation>No people. Add whoever shares expenses with you to know who owes whom.</translation>
        </message>
        <message>
            <source>Nessuna spesa divisa né saldo con questa persona.</source>
            <translation>No shared expenses or settlements with this person.</translation>
        </message>
        <message>
            <source>Non registrata</source>
            <translation>Not recorded</translation>
        </message>
        <message>
            <source>Numero di rate mensili</source>
            <translation>Number of monthly instalments</translation>
        </message>
        <message>
            <source>Nuovo bene</source>
            <translation>New asset</translation>
        </message>
        <message>
            <source>Nuovo bene…</source>
            <translation>New Asset…</translation>
        </message>
        <message>
            <source>Nuovo prestito</source>
            <translation>New loan</translation>
        </message>
        <message>
            <source>Nuovo prestito…</source>
            <translation>New Loan…</translation>
        </message>
        <message>
            <source>Nuovo valore</source>
            <translation>New value</translation>
        </message>
        <message>
            <source>Patrimonio netto</source>
            <translation>Net worth</translation>
        </message>
        <message>
            <source>Patrimonio netto negli ultimi dodici mesi</source>
            <translation>Net worth over the last twelve months</translation>
        </message>
        <message>
            <source>Piano di ammortamento</source>
            <translation>Repayment plan</translation>
        </message>
        <message>
            <source>Piano di ammortamento: {name}</source>
            <translation>Repayment plan: {name}</translation>
        </message>
        <message>
            <source>Piano di ammortamento…</source>
            <translation>Repayment Plan…</translation>
        </message>
        <message>
            <source>Prestito</source>
            <translation>Loan</translation>
        </message>
        <message>
            <source>Prima rata</source>
            <translation>First instalment</translation>
        </message>
        <message>
            <source>Rata</source>
            <translation>Instalment</translation>
        </message>
        <message>
            <source>Rata mensile</source>
            <translation>Monthly instalment</translation>
        </message>
        <message>
            <source>Rata ricorrente</source>
            <translation>Recurring instalment</translation>
        </message>
        <message>
            <source>Rata {payment} · Interessi totali {interest}</source>
            <translation>Instalment {payment} · Total interest {interest}</translation>
        </message>
        <message>
            <source>Rate mensili</source>
            <translation>Monthly instalments</translation>
        </message>
        <message>
            <source>Rate pagate</source>
            <translation>Instalments paid</translation>
        </message>
        <message>
            <source>Registra la rata</source>
            <translation>Record Instalment</translation>
        </message>
        <message>
            <source>Registra la rata come movimento ricorrente</source>
            <translation>Record the instalment as a recurring movement</translation>
        </message>
        <message>
            <source>Registra le rate</source>
            <translation>Record instalments</translation>
        </message>
        <message>
            <source>Residuo</source>
            <translation>Remaining</translation>
        </message>
        <message>
            <source>Salda</source>
            <translation>Settle up</translation>
        </message>
        <message>
            <source>Salda con {name}</source>
            <translation>Settle up with {name}</translation>
        </message>
        <message>
            <source>Salda il conto con la persona</source>
            <translation>Settle up with the person</translation>
        </message>
        <message>
            <source>Salda…</source>
            <translation>Settle Up…</translation>
        </message>
        <message>
            <source>Saldo attuale</source>
            <translation>Current balance</translation>
        </message>
        <message>
            <source>Scrivi il tasso annuo in percentuale, per esempio 3,5.</source>
            <translation>Type the yearly rate in percent, for example 3.5.</translation>
        </message>
        <message>
            <source>Storico</source>
            <translation>History</translation>
        </message>
        <message>
            <source>Storico con {name}</source>
            <translation>History with {name}</translation>
        </message>
        <message>
            <source>Tasso annuo (%)</source>
            <translation>Yearly rate (%)</translation>
        </message>
        <message>
            <source>Ti deve {amount}</source>
            <translation>Owes you {amount}</translation>
        </message>
        <message>
            <source>Tipo di movimento</source>
            <translation>Kind of entry</translation>
        </message>
        <message>
            <source>Valore</source>
            <translation>Value</translation>
        </message>
        <message>
            <source>Valore attuale</source>
            <translation>Current value</translation>
        </message>
        <message>
            <source>Valutato il</source>
            <translation>Valued on</translation>
        </message>
        <message>
            <source>{made} di {total}</source>
            <translation>{made} of {total}</translation>
        </message>
        <message>
            <source>Ricerca salvata: clic destro per rinominarla o eliminarla</source>
            <translation>Saved search: right-click to rename or delete it</translation>
        </message>
        <message>
            <source>Rinomina</source>
            <translation>Rename</translation>
        </message>
        <message>
            <source>Eliminare la ricerca?</source>
            <translation>Delete the search?</translation>
        </message>
        <message>
            <source>La ricerca «{name}» sparisce dalla barra laterale; i movimenti restano.</source>
            <translation>The search “{name}” leaves the sidebar; the movements stay.</translation>
        </message>
    </context>
</TS>