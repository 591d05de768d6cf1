<?xml version="1.0" encoding="UTF-8"?>
<ksy>
  <ver>1</ver>
  <nm>The thirty-two nabhasa yogas</nm>
  <au>Kestrav</au>
  <intro>The seven planets without the nodes form patterns in the sky. The sankhya yogas apply, as the texts say, when none of the others does.</intro>
  <yg>
    <op>1</op>
    <tl>Rajju</tl>
    <rl>InSign,,all.pla,mov</rl>
    <in>Fond of travel, quick to change; fortune is sought away from home.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: ashraya and dala</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Musala</tl>
    <rl>InSign,,all.pla,fix</rl>
    <in>Steady, proud and well off; holds what he has and is known for it.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: ashraya and dala</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Nala</tl>
    <rl>InSign,,all.pla,dua</rl>
    <in>Clever and many-sided, saving, uneven in body or in means.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: ashraya and dala</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Srak</tl>
    <rl>Occupied,,Mer+Jup+Ven,3,3,ken\InHouse,,no.Sun+Mar+Sat,ken</rl>
    <in>Pleasure, good company and comfort throughout.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: ashraya and dala</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Sarpa</tl>
    <rl>Occupied,,Sun+Mar+Sat,3,3,ken\InHouse,,no.Mer+Jup+Ven,ken</rl>
    <in>Many kinds of trouble and dependence on others; hardness is met and given.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: ashraya and dala</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Yupa</tl>
    <rl>Fill,,pla,h1+2+3+4</rl>
    <in>Religious, generous and self-restrained, given to offerings and good works.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Ishu</tl>
    <rl>Fill,,pla,h4+5+6+7</rl>
    <in>Skilled with weapons or confinement, hard towards others, fond of the chase.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shakti</tl>
    <rl>Fill,,pla,h7+8+9+10</rl>
    <in>Slow to succeed, keen in strife, patient in want.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Danda</tl>
    <rl>Fill,,pla,h10+11+12+1</rl>
    <in>Loses those who are near, serves others, stands apart from his own.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Nau</tl>
    <rl>Run,,pla,7,1</rl>
    <in>Lives by water and trade, well known, of unsteady joys.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kuta</tl>
    <rl>Run,,pla,7,4</rl>
    <in>Given to concealment; guards, keepers and people of high and lonely places.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Chhatra</tl>
    <rl>Run,,pla,7,7</rl>
    <in>Helps his own people, happy in the first and the last part of life.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Chapa</tl>
    <rl>Run,,pla,7,10</rl>
    <in>Brave, secretive and fond of wild places; fortunate in the middle of life.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Ardha Chandra</tl>
    <rl>Run,,pla,7,2,3,5,6,8,9,11,12</rl>
    <in>Handsome and strong, favoured by those in power, a leader of others.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Gada</tl>
    <rl>Fill,,pla,h1+4\OR\Fill,,pla,h4+7\OR\Fill,,pla,h7+10\OR\Fill,,pla,h10+1</rl>
    <in>Always busy to earn, versed in ritual and song, rich in the end.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shakata of the nabhasas</tl>
    <rl>Fill,,pla,h1+7</rl>
    <in>Lives by carting and hard work; ill or poor at times, with a difficult household.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vihaga</tl>
    <rl>Fill,,pla,h4+10</rl>
    <in>A messenger and traveller, quick to quarrel.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shringataka</tl>
    <rl>Fill,,pla,h1+5+9</rl>
    <in>Happy late in life, fond of contest, esteemed by those in power.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Hala</tl>
    <rl>Fill,,pla,h2+6+10\OR\Fill,,pla,h3+7+11\OR\Fill,,pla,h4+8+12</rl>
    <in>Works the soil, eats much, has many mouths to feed.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vajra</tl>
    <rl>Fill,,Mer+Jup+Ven,h1+7\Fill,,Sun+Mar+Sat,h4+10</rl>
    <in>Happy at the beginning and at the end of life; brave and good-looking.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Yava</tl>
    <rl>Fill,,Sun+Mar+Sat,h1+7\Fill,,Mer+Jup+Ven,h4+10</rl>
    <in>Happy in the middle of life; steady, giving, keeps vows.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kamala</tl>
    <rl>Fill,,pla,ken</rl>
    <in>Wide fame, many virtues and a long and clean life.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vapi</tl>
    <rl>InHouse,,all.pla,pan\OR\InHouse,,all.pla,apo</rl>
    <in>Gathers wealth and keeps it close; quiet, lasting comfort.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Samudra</tl>
    <rl>Fill,,pla,h2+4+6+8+10+12</rl>
    <in>Lives like one of rank, in plenty and in good spirits.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Chakra</tl>
    <rl>Fill,,pla,h1+3+5+7+9+11</rl>
    <in>Commands others and is bowed to by the great.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: akriti</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vallaki</tl>
    <rl>Occupied,,pla,7,7</rl>
    <in>Fond of music and the arts, able in affairs, with many helpers.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: sankhya</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dama</tl>
    <rl>Occupied,,pla,6,6</rl>
    <in>Generous and helpful, owner of cattle or much property.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: sankhya</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Pasha</tl>
    <rl>Occupied,,pla,5,5</rl>
    <in>Clever at earning, talkative, with a large following; bound by many duties.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: sankhya</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kedara</tl>
    <rl>Occupied,,pla,4,4</rl>
    <in>Lives by the land, truthful and useful to many.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: sankhya</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shula</tl>
    <rl>Occupied,,pla,3,3</rl>
    <in>Sharp and daring, with little ease; scars from contests.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: sankhya</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Yuga</tl>
    <rl>Occupied,,pla,2,2</rl>
    <in>Outside the common order; little wealth and odd beliefs.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: sankhya</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Gola</tl>
    <rl>Occupied,,pla,1,1</rl>
    <in>Strong but poor, without much schooling; wanders.</in>
    <cm>Brihat Jataka, chapter 12 (nabhasa yogas).</cm>
    <vs>Rasi</vs>
    <ch>Nabhasa: sankhya</ch>
  </yg>
</ksy>
